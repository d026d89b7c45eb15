// Files that others change are noticed, and only those.
#include <gmock/gmock.h>

#include "platform/FileWatch.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Watch : public HostTest {
 protected:
  Path file = host.WriteCfg("A.x.xrpt", "one");
  FileWatch watch{*host->files};
  FileVersion Now() { return {host->files->Stamp(file), TestHost::ReadFile(file)}; }
};

TEST_F(Watch, TellsOnceWhenAFileHoldsSomethingElse) {
  watch.Add(file, Now());
  EXPECT_THAT(watch.Changed(), IsEmpty());
  host.WriteCfg("A.x.xrpt", "two");
  EXPECT_THAT(watch.Changed(), ElementsAre(file));
  EXPECT_THAT(watch.Changed(), IsEmpty());
  host->files->Write(file, "two");
  EXPECT_THAT(watch.Changed(), IsEmpty()) << "written anew, with the same content";
  std::filesystem::remove(file);
  EXPECT_THAT(watch.Changed(), ElementsAre(file));
  EXPECT_THAT(watch.Changed(), IsEmpty());
  host.WriteCfg("A.x.xrpt", "two");
  EXPECT_THAT(watch.Changed(), ElementsAre(file)) << "back again";
  host.WriteCfg("A.x.xrpt", "three");
  watch.Add(file, Now());
  EXPECT_THAT(watch.Changed(), IsEmpty()) << "our own save";
  watch.Remove(file);
  host.WriteCfg("A.x.xrpt", "four");
  EXPECT_THAT(watch.Changed(), IsEmpty());
}

TEST_F(Watch, TellsOfFoldersWhoseFilesComeGoOrAreWritten) {
  const Path style = host.WriteCfg("S.Title.XSTY", "one");
  watch.AddFolder(host.Cfg(), {L".XSTY", L"devices.xml"});
  host.WriteCfg("A.x.xrpt", "not of that kind");
  EXPECT_THAT(watch.Changed(), IsEmpty());
  for (const auto& change : {std::function<void()>([&] { host.WriteCfg("T.Text.XSTY", "new"); }),
                             std::function<void()>([&] { host.WriteCfg("S.Title.XSTY", "other"); }),
                             std::function<void()>([&] { std::filesystem::remove(style); })}) {
    change();
    EXPECT_THAT(watch.Changed(), ElementsAre(host.Cfg()));
    EXPECT_THAT(watch.Changed(), IsEmpty());
  }
}

}  // namespace
}  // namespace xrpt
