// The small services: settings, identifiers, log, devices, variable names, folders, fonts.
#include <gmock/gmock.h>

#include <clocale>
#include <set>

#include "host/FileLogger.h"
#include "host/IdentifierListeners.h"
#include "host/IniSettings.h"
#include "host/PlainFonts.h"
#include "host/RandomGuids.h"
#include "host/SystemLocale.h"
#include "host/VariableNames.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

using Settings = HostTest;

TEST_F(Settings, ComeBackAsTheyWereWhateverTheyHold) {
  const std::wstring awkward[] = {L"", L"a=b", L"[x]", L"line\nline\r", L"\\n;", L"ñandú €", L" both ends "};
  const Path file = host.Folder() / "s.ini";
  {
    IniSettings settings(*host, file);
    for (const std::wstring& text : awkward) settings.SetProfileText(L"[" + text + L"]", L"=" + text, text);
    settings.SetProfileInt(L"%s-SCBar-%d", L"width", -12);
    settings.SetRegistryText(L"LastInforme", L"report1");
  }
  const IniSettings settings(*host, file);
  for (const std::wstring& text : awkward) EXPECT_EQ(settings.ProfileText(L"[" + text + L"]", L"=" + text), text);
  EXPECT_EQ(settings.ProfileInt(L"%s-SCBar-%d", L"width", 7), -12);
  EXPECT_EQ(settings.ProfileInt(L"%s-SCBar-%d", L"height", 7), 7);
  EXPECT_EQ(settings.RegistryText(L"LastInforme"), L"report1");
}

TEST_F(Settings, RegistryValueIsOnDiskAtOnceAndKeepsWhatOthersWrote) {
  const Path file = host.Folder() / "s.ini";
  IniSettings first(*host, file);
  EXPECT_EQ(first.RegistryText(L"LastInforme"), L"");
  IniSettings(*host, file).SetRegistryText(L"Other", L"theirs");
  first.SetRegistryText(L"LastInforme", L"ours");
  const IniSettings now(*host, file);
  EXPECT_EQ(now.RegistryText(L"Other"), L"theirs");
  EXPECT_EQ(now.RegistryText(L"LastInforme"), L"ours");
}

TEST_F(Settings, BrokenFileIsReadAsFarAsItGoes) {
  const Path file = host.Folder() / "s.ini";
  TestHost::WriteFile(file, "junk\n[a\n[a]\r\n=\nx=1\r\n\xFF=2\n;c=3\n[a]\nx=9");
  EXPECT_EQ(IniSettings(*host, file).ProfileText(L"a", L"x"), L"9");
}

TEST_F(Settings, FileThatIsNotAllSettingsIsSetAsideBeforeItIsReplaced) {
  const Path file = host.Folder() / "s.ini";
  for (const char* foreign : {"[a]\nx=1\nsomebody's notes\n", "\xFF\xFE[a]\nx=1\n"}) {
    TestHost::WriteFile(file, foreign);
    IniSettings(*host, file).SetRegistryText(L"LastInforme", L"ours");
    EXPECT_EQ(IniSettings(*host, file).RegistryText(L"LastInforme"), L"ours");
  }
  EXPECT_EQ(TestHost::ReadFile(host.Folder() / "s.ini.set-aside"), "[a]\nx=1\nsomebody's notes\n");
  EXPECT_EQ(TestHost::ReadFile(host.Folder() / "s.ini.set-aside-2").substr(0, 2), "\xFF\xFE");
  EXPECT_THAT(host.logger->Text(3), HasSubstr("s.ini.set-aside-2"));
  IniSettings(*host, file).SetRegistryText(L"LastInforme", L"ours again");
  EXPECT_EQ(host->files->List(host.Folder(), L".set-aside").size(), 1u) << "our own file is whole";
}

TEST(Guids, AreUniqueUpperCaseAndFitForAFileName) {
  RandomGuids guids;
  std::set<std::wstring> seen;
  for (int i = 0; i < 20000; ++i) seen.insert(guids.NewGuidText());
  EXPECT_EQ(seen.size(), 20000u);
  for (const std::wstring& text : {*seen.begin(), *seen.rbegin()}) {
    EXPECT_THAT(ToUtf8(text),
                ::testing::MatchesRegex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}"));
  }
  EXPECT_NE(RandomGuids().NewGuidText(), RandomGuids().NewGuidText());
}

TEST(VariableNamesTest, SplitAndJoinAreInverse) {
  const struct {
    const wchar_t* name;
    DriverVariable parts;
  } rows[] = {{L"", {}},
              {L"PLANT", {L"PLANT", L"", L"", L""}},
              {L"PLANT.AE", {L"PLANT", L"AE", L"", L""}},
              {L"PLANT.AE.IMG", {L"PLANT", L"AE", L"IMG", L""}},
              {L"PLANT.AE.GOBACK12", {L"PLANT", L"AE", L"GOBACK", L"12"}},
              {L"PLANT.AE.GOBACK-3", {L"PLANT", L"AE", L"GOBACK", L"-3"}},
              {L"PLANT.AE.GOBACK@P1", {L"PLANT", L"AE", L"GOBACK", L"@P1"}},
              {L"PLANT.AE.GOBACK1.5", {L"PLANT", L"AE", L"GOBACK", L"1.5"}},
              {L"PLANT.AE.GOBACK", {L"PLANT", L"AE", L"GOBACK", L""}},
              {L"PLANT.AE.MAX.1", {L"PLANT", L"AE", L"MAX.1", L""}},
              {L"VIRTUAL_Dev 1.AE", {L"VIRTUAL_Dev 1", L"AE", L"", L""}},
              {L"PLANT..GOBACK1", {L"PLANT", L"", L"GOBACK", L"1"}}};
  for (const auto& row : rows) {
    const DriverVariable parts = SplitVariableName(row.name);
    EXPECT_EQ(std::tie(parts.device, parts.variable, parts.kind, parts.period),
              std::tie(row.parts.device, row.parts.variable, row.parts.kind, row.parts.period))
        << ToUtf8(row.name);
    EXPECT_EQ(JoinVariableName(row.parts), row.name);
  }
  EXPECT_EQ(JoinVariableName({L"PLANT", L"AE", L"", L"week"}), L"PLANT.AE.GOBACKweek");
}

using Logging = HostTest;

TEST_F(Logging, GoesToTheFileAndToListenersOnOneLine) {
  std::vector<int> heard;
  FileLogger logger(host.State(), false);
  const int number = logger.Add([&heard](int severity, std::wstring_view) { heard.push_back(severity); });
  logger.Log(4, L"one\n\x1B[31mtwo\x9B");
  logger.Remove(number);
  logger.Log(2, L"three");
  const std::string text = TestHost::ReadFile(host.State() / FileLogger::kFileName);
  EXPECT_THAT(text, HasSubstr("error one  [31mtwo \n"));
  EXPECT_THAT(text, HasSubstr("info three\n"));
  EXPECT_THAT(heard, ElementsAre(4));
}

TEST_F(Logging, FileDoesNotGrowForEver) {
  FileLogger logger(host.State(), false);
  const std::wstring line(100'000, L'x');
  for (int i = 0; i < 25; ++i) logger.Log(1, line);
  EXPECT_LT(std::filesystem::file_size(host.State() / FileLogger::kFileName), 2u * FileLogger::kMaxBytes);
  EXPECT_TRUE(std::filesystem::exists(host.State() / "xrpt.log.1"));
}

TEST_F(Logging, FolderThatCannotBeMadeIsNoFault) {
  FileLogger logger(TestHost::WriteFile(host.Folder() / "file", ""), false);
  EXPECT_NO_THROW(logger.Log(4, L"lost"));
}

using DevicesTest = HostTest;

TEST_F(DevicesTest, AreReadAndReadAgainWhenTheFileChanges) {
  EXPECT_THAT(host->devices->Devices(), IsEmpty());
  host.WriteCfg("devices.xml",
                "<devices><device><id>CVM</id><name>Cuadro ñ</name><variable><id>AE</id><name>Energía</name></variable>"
                "<other/></device><junk/></devices>");
  const std::vector<Device> devices = host->devices->Devices();
  ASSERT_EQ(devices.size(), 1u);
  EXPECT_EQ(devices[0].name, L"Cuadro ñ");
  ASSERT_EQ(devices[0].variables.size(), 1u);
  EXPECT_EQ(devices[0].variables[0].id, L"AE");
  host.WriteCfg("devices.xml", "<devices>");
  EXPECT_THAT(host->devices->Devices(), IsEmpty());
  EXPECT_THAT(host.logger->Text(3), HasSubstr("devices.xml"));
}

TEST(SystemLocaleTest, LeavesTheProgramsLocaleAlone) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  const SystemLocale locale("C");
  EXPECT_EQ(locale.DecimalSeparator(), L".");
  EXPECT_EQ(locale.ThousandsSeparator(), L",");
  EXPECT_EQ(locale.MonthName(12), L"December");
  EXPECT_EQ(locale.DayName(0), L"Sunday");
  EXPECT_EQ(locale.MonthName(13), L"");
  EXPECT_EQ(locale.DayName(-1), L"");
  std::tm date{};
  date.tm_year = 124;
  date.tm_mday = 5;
  EXPECT_EQ(locale.DateTimeText(date), L"01/05/24 00:00:00");
  EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
  EXPECT_EQ(SystemLocale("xx_NOWHERE").DecimalSeparator(), L".");
}

TEST(Folders, EmptyOptionsFollowTheUsersVariables) {
  ::setenv("XDG_CONFIG_HOME", "/somewhere/c", 1);
  ::setenv("XDG_STATE_HOME", "relative/is/ignored", 1);
  ::setenv("HOME", "/home/user", 1);
  const HostOptions options = WithUserFolders({});
  EXPECT_EQ(options.cfgFolder, "/somewhere/c/report-template-editor/config");
  EXPECT_EQ(options.imagesFolder, options.cfgFolder / "images");
  EXPECT_EQ(options.stateFolder, "/home/user/.local/state/report-template-editor");
  HostOptions given;
  given.cfgFolder = "cfg";
  EXPECT_EQ(WithUserFolders(given).imagesFolder, "cfg/images");
  ::unsetenv("XDG_CONFIG_HOME");
  ::unsetenv("XDG_STATE_HOME");
}

TEST(PlainFontsTest, WidthsGrowAsTextDoes) {
  PlainFonts fonts;
  const Font regular{L"Arial", 10.0, FontStyle::Normal};
  const Font bold{L"Arial", 10.0, FontStyle::Bold};
  const Font mono{L"Courier New", 10.0, FontStyle::Normal};
  EXPECT_NEAR(fonts.Width(regular, L"AVm1 "), 6.67 + 6.67 + 8.33 + 5.56 + 2.78, 1e-9);
  EXPECT_GT(fonts.Width(bold, L"abc"), fonts.Width(regular, L"abc"));
  EXPECT_EQ(fonts.Width(regular, L"ÑÜéÿ"), fonts.Width(regular, L"NUey"));
  EXPECT_NEAR(fonts.Width(mono, L"iW"), 12.0, 1e-9);
  EXPECT_EQ(fonts.Width(regular, L"漢"), 10.0);
  EXPECT_EQ(fonts.Width(regular, L"e\x301"), fonts.Width(regular, L"e"));
}

}  // namespace
}  // namespace xrpt
