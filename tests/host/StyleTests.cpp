#include <gmock/gmock.h>

#include "host/DiskFiles.h"
#include "host/FileStyles.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

// Counts what the table asks of the disk.
class CountingFiles final : public FileService {
 public:
  explicit CountingFiles(std::unique_ptr<FileService> files) : files_(std::move(files)) {}
  std::optional<std::string> Read(const Path& file, std::size_t limit, FileError* error) override {
    ++reads;
    return files_->Read(file, limit, error);
  }
  SaveResult Write(const Path& file, std::string_view bytes, const FileVersion* expected) override {
    return files_->Write(file, bytes, expected);
  }
  std::vector<Path> List(const Path& folder, std::wstring_view ending) override {
    ++lists;
    return files_->List(folder, ending);
  }
  bool CreateFolder(const Path& folder) override { return files_->CreateFolder(folder); }
  bool Rename(const Path& from, const Path& to) override { return files_->Rename(from, to); }
  bool Remove(const Path& file) override { return files_->Remove(file); }
  FileStamp Stamp(const Path& file) override { return files_->Stamp(file); }
  int reads = 0;
  int lists = 0;

 private:
  std::unique_ptr<FileService> files_;
};

class Styles : public HostTest {
 protected:
  Styles() {
    auto counting = std::make_unique<CountingFiles>(std::move(host->files));
    files = counting.get();
    host->files = std::move(counting);
    AddStyle("AAAA", "Title",
             "<font><name>Times</name><style>BOLD</style><size>14.50</size><color>0000FF</color></font>");
    AddStyle("BBBB", "Plain", "");
  }
  void AddStyle(const std::string& id, const std::string& name, const std::string& font) {
    host.WriteCfg(id + "." + name + ".XSTY", "<style><id>" + id + "</id><name>" + name + "</name>" + font + "</style>");
  }
  std::string NameOf(std::wstring_view id) {
    std::wstring name;
    return host->styles->StyleId2Name(id, name) ? ToUtf8(name) : "unknown";
  }
  std::string IdOf(std::wstring_view name) {
    std::wstring id;
    return host->styles->StyleName2Id(name, id) ? ToUtf8(id) : "unknown";
  }
  std::wstring FaceOf(std::wstring_view name) {
    const std::optional<StyleFont> font = host->styles->Font(name);
    return font ? font->name : L"none";
  }
  CountingFiles* files;
};

TEST_F(Styles, AreFoundByNameAndById) {
  EXPECT_EQ(NameOf(L"AAAA"), "Title");
  EXPECT_EQ(IdOf(L"Title"), "AAAA");
  EXPECT_EQ(IdOf(L"Plain"), "BBBB");
  EXPECT_EQ(IdOf(L"title"), "unknown");
  EXPECT_EQ(IdOf(L""), "unknown");
  EXPECT_EQ(NameOf(L""), "unknown");
  EXPECT_EQ(IdOf(L"../AAAA.Title"), "unknown");
}

TEST_F(Styles, GiveTheFontOfTheirFile) {
  const std::optional<StyleFont> font = host->styles->Font(L"Title");
  ASSERT_TRUE(font);
  EXPECT_EQ(std::tuple(font->name, font->style, font->size, font->color, font->hasColor),
            std::tuple(L"Times", FontStyle::Bold, 14.5, Color{0xFF}, true));
  EXPECT_FALSE(host->styles->Font(L"Plain"));
  EXPECT_FALSE(host->styles->Font(L"None"));
  AddStyle("CCCC", "Bare", "<font/>");
  host->identifiers->invalidateGuid(GuidKind::Styles, true);
  EXPECT_EQ(host->styles->Font(L"Bare")->size, 10.0);
  EXPECT_FALSE(host->styles->Font(L"Bare")->hasColor);
}

TEST_F(Styles, TenThousandQuestionsCostOneListing) {
  for (int i = 0; i < 10'000; ++i) {
    ASSERT_EQ(FaceOf(i % 2 ? L"Title" : L"Plain"), i % 2 ? L"Times" : L"none");
    ASSERT_EQ(NameOf(i % 2 ? L"AAAA" : L"nobody's"), i % 2 ? "Title" : "unknown");
  }
  EXPECT_EQ(files->lists, 1);
  EXPECT_EQ(files->reads, 2);
}

TEST_F(Styles, AreReadAgainAfterInvalidation) {
  EXPECT_EQ(FaceOf(L"Title"), L"Times");
  AddStyle("AAAA", "Title", "<font><name>Courier</name></font>");
  host->identifiers->invalidateGuid(GuidKind::Reports, true);
  EXPECT_EQ(FaceOf(L"Title"), L"Times") << "reports changed, styles did not";
  host->identifiers->invalidateGuid(GuidKind::Styles, true);
  EXPECT_EQ(FaceOf(L"Title"), L"Courier");
}

TEST_F(Styles, NoticeFilesAnotherProgramAdded) {
  FileStyles table(*host, std::chrono::seconds(0));
  EXPECT_FALSE(table.Font(L"Late"));
  AddStyle("CCCC", "Late", "<font/>");
  EXPECT_TRUE(table.Font(L"Late"));
}

TEST_F(Styles, ExactNameComesBeforeOneThatOnlyEndsSo) {
  AddStyle("0000", "My.Title", "<font><name>Other</name></font>");
  AddStyle("1111", "My.Note", "<font><name>Note</name></font>");
  EXPECT_EQ(IdOf(L"Title"), "AAAA");
  EXPECT_EQ(IdOf(L"My.Title"), "0000");
  EXPECT_EQ(FaceOf(L"Note"), L"Note");
}

TEST_F(Styles, IdInTheFileWinsOverTheOneInItsName) {
  host.WriteCfg("copied.Copy.XSTY", "<style><id>DDDD</id><font/></style>");
  EXPECT_EQ(IdOf(L"Copy"), "DDDD");
  EXPECT_EQ(NameOf(L"DDDD"), "Copy");
}

TEST_F(Styles, UnreadableFileIsAMissingStyle) {
  host.WriteCfg("EEEE.Broken.XSTY", "<style><id>EEEE</id>");
  EXPECT_EQ(IdOf(L"Broken"), "unknown");
  EXPECT_EQ(NameOf(L"EEEE"), "unknown");
  EXPECT_FALSE(host->styles->Font(L"Broken"));
}

}  // namespace
}  // namespace xrpt
