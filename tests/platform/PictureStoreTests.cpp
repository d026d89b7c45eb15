// Pictures shared between cards, and the folder they may come from.
#include <atomic>
#include <future>

#include "platform/ImageFiles.h"
#include "platform/NamedFiles.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

PicturePtr AnyPicture() { return std::make_shared<Picture>(); }

TEST(Pictures, AreReadOnceARecordAndAgainAfterAReload) {
  int reads = 0;
  bool there = true;
  PictureStore store([&](const std::wstring& id, const std::wstring& path) {
    ++reads;
    EXPECT_EQ(id + L"|" + path, L"logo|plant");
    return there ? AnyPicture() : nullptr;
  });
  ImageRecordPtr record = store.Attach(L"logo", L"plant");
  EXPECT_EQ(reads, 0);
  EXPECT_EQ(store.Attach(L"logo", L"plant"), record);
  EXPECT_TRUE(record->Current());
  EXPECT_EQ(record->Current(), record->Current());
  EXPECT_EQ(reads, 1);
  there = false;
  store.ReloadAll();
  EXPECT_FALSE(record->Current());
  EXPECT_FALSE(record->Current());
  EXPECT_EQ(reads, 2);
  EXPECT_NE(store.Attach(L"logo", L""), record);
  EXPECT_EQ(store.Count(), 1u) << "nobody held the other";
  record.reset();
  EXPECT_EQ(store.Count(), 0u);
}

// A picture that takes long to read keeps those waiting who want it, and nobody else.
TEST(Pictures, AreReadOnceBySeveralThreadsAndHoldUpNoOther) {
  std::promise<void> begun;
  std::promise<void> mayEnd;
  std::atomic<int> reads = 0;
  PictureStore store([&](const std::wstring& id, const std::wstring&) {
    ++reads;
    if (id == L"slow") {
      begun.set_value();
      mayEnd.get_future().wait();
    }
    return AnyPicture();
  });
  const ImageRecordPtr slow = store.Attach(L"slow", L"");
  const ImageRecordPtr quick = store.Attach(L"quick", L"");
  const auto ask = [](const ImageRecordPtr& record) {
    return std::async(std::launch::async, [record] { return record->Current(); });
  };
  auto first = ask(slow);
  begun.get_future().wait();
  auto second = ask(slow);
  auto other = ask(quick);
  const bool isFree = other.wait_for(std::chrono::seconds(20)) == std::future_status::ready;
  EXPECT_EQ(second.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
  mayEnd.set_value();
  EXPECT_TRUE(isFree);
  EXPECT_TRUE(other.get());
  const PicturePtr picture = first.get();
  EXPECT_TRUE(picture);
  EXPECT_EQ(second.get(), picture);
  EXPECT_EQ(reads, 2);
}

TEST(Pictures, ReloadedWhileTheyAreReadAreReadAgain) {
  int reads = 0;
  ImageRecordPtr record;
  PictureStore store([&](const std::wstring&, const std::wstring&) {
    if (++reads == 1) record->Reload();
    return reads == 1 ? nullptr : AnyPicture();
  });
  record = store.Attach(L"a", L"");
  EXPECT_TRUE(record->Current()) << "what was read first is no more";
  EXPECT_EQ(reads, 2);
  record.reset();
}

// The last holder of a record lets go of it just while its picture is dropped. What goes wrong is the walk over the
// records, which the address sanitizer sees.
TEST(Pictures, MayGoWhileAllAreReloaded) {
  std::vector<ImageRecordPtr> held;
  PictureStore store([&held](const std::wstring& id, const std::wstring&) {
    const std::size_t own = static_cast<std::size_t>(id[0] - L'a');
    return PicturePtr(new Picture, [&held, own](const Picture* picture) {
      held[own].reset();
      delete picture;
    });
  });
  for (const wchar_t* id : {L"a", L"b", L"c"}) held.push_back(store.Attach(id, L""));
  for (const ImageRecordPtr& record : held) EXPECT_TRUE(record->Current());
  store.ReloadAll();
  for (const ImageRecordPtr& record : held) EXPECT_FALSE(record);
  EXPECT_EQ(store.Count(), 0u);
}

// A host whose pictures are whatever bytes the file holds.
struct Bytes final : PictureService {
  PicturePtr Decode(std::string_view bytes) override {
    seen = bytes;
    return bytes.empty() ? nullptr : AnyPicture();
  }
  std::string seen;
};

struct ImageFiles : HostTest {
  ImageFiles() {
    auto service = std::make_unique<Bytes>();
    bytes = service.get();
    host->pictures = std::move(service);
  }
  Bytes* bytes;
};

TEST_F(ImageFiles, HoldBase64InXmlEscapes) {
  const std::pair<const char*, const char*> rows[] = {
      {"TWFu", "Man"}, {"TW\r\nFu\n", "Man"}, {"TWE&#61;", "Ma"}, {"TW!u", nullptr}, {"", nullptr}};
  for (const auto& [file, decoded] : rows) {
    TestHost::WriteFile(host.Images() / "p.img", file);
    bytes->seen.clear();
    EXPECT_EQ(ReadImageFile(*host, L"p", L"./") != nullptr, decoded != nullptr) << file;
    EXPECT_EQ(bytes->seen, decoded ? decoded : "") << file;
  }
}

TEST_F(ImageFiles, StayInTheirFolder) {
  for (const char* file : {"images/p.img", "images/a/p.img", "images/a/b/p.img", "p.img", "images/a/..img"}) {
    TestHost::WriteFile(host.Folder() / file, "TWFu");
  }
  const struct {
    const wchar_t* id;
    const wchar_t* path;
    bool found;
  } rows[] = {{L"p", L"./", true},    {L"p", L"", true},     {L"p", L"a", true},        {L"p", L"a/b/", true},
              {L"p", L"./a", true},   {L"p", L"../", false}, {L"p", L"a/../..", false}, {L"p", L"a/../", false},
              {L"../p", L"", false},  {L"a/p", L"", false},  {L".", L"a", false},       {L"p", L"/", false},
              {L"p", L"..\\", false}, {L"p", L"none", false}};
  for (const auto& row : rows) {
    EXPECT_EQ(ReadImageFile(*host, row.id, row.path) != nullptr, row.found) << row.id << L" in " << row.path;
  }
  const std::wstring absolute = host.Images().wstring();
  EXPECT_FALSE(ReadImageFile(*host, L"p", absolute));
}

struct NamedFilesTest : HostTest {};

TEST_F(NamedFilesTest, AreFoundByNameWhateverTheirIdentifier) {
  for (const char* file : {"A.one.xrpt", "B.x.two.xrpt", "C.two.xrpt", "plain.xrpt", "D.one.XSTY", "E.one.xrpt.bak"}) {
    host.WriteCfg(file, "x");
  }
  const auto found = [&](const wchar_t* name) {
    const std::optional<Path> file = FindNamedFile(host.Cfg(), name, L".xrpt");
    return file ? file->filename().string() : "-";
  };
  EXPECT_EQ(found(L"one"), "A.one.xrpt");
  EXPECT_EQ(found(L"two"), "C.two.xrpt") << "the exact name comes before one that ends so";
  EXPECT_EQ(found(L"x.two"), "B.x.two.xrpt");
  EXPECT_EQ(found(L"plain"), "-") << "a file without identifier";
  for (const wchar_t* name : {L"", L"*", L"../cfg/A.one", L"three"}) EXPECT_EQ(found(name), "-") << name;
  EXPECT_EQ(NamesInFolder(host.Cfg(), L".xrpt"), (std::vector<std::wstring>{L"one", L"plain", L"two", L"x.two"}));
  EXPECT_EQ(NamedFilePath(host.Cfg(), L"I", L"n", L".xrpt"), host.Cfg() / "I.n.xrpt");
  EXPECT_EQ(NameOfFile(host.Cfg() / "I.n.m.xrpt", L".xrpt"), L"n.m");
}

}  // namespace
}  // namespace xrpt
