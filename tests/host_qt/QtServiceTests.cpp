#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <clocale>

#include "host/qt/QtClipboard.h"
#include "host/qt/QtHost.h"
#include "host/qt/QtLocale.h"
#include "host/qt/QtScreen.h"
#include "host/qt/QtSettings.h"
#include "platform/Numbers.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

class QtServices : public ::testing::Test {
 protected:
  QtServices() { EnsureHeadlessQt(); }
};

TEST_F(QtServices, HostIsWholeAndNumbersKeepTheirPoint) {
  const TemporaryFolder folder;
  HostOptions options;
  options.cfgFolder = options.stateFolder = folder.Folder();
  options.settingsFile = folder.Folder() / "s.ini";
  options.dpi = 120;
  const auto host = MakeQtHost(options);
  EXPECT_TRUE(host->setup && host->files && host->texts && host->settings && host->identifiers && host->styles &&
              host->guids && host->logger && host->pictures && host->fonts && host->clipboard && host->locale &&
              host->screen && host->devices && host->variables);
  EXPECT_EQ(host->screen->DpiY(), 120);
  EXPECT_STREQ(std::localeconv()->decimal_point, ".");
}

TEST_F(QtServices, ClipboardHoldsTheTextAndThePictures) {
  QtClipboard clipboard;
  ASSERT_TRUE(clipboard.PutToClipboard({"<a>ñ</a>", "<svg/>", "png"}));
  EXPECT_EQ(clipboard.GetFromClipboard(100), "<a>ñ</a>");
  EXPECT_EQ(clipboard.GetFromClipboard(9), "<a>ñ</a>");
  EXPECT_EQ(clipboard.GetFromClipboard(8), "") << "nine bytes";
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(data->data(QStringLiteral("image/svg+xml")), "<svg/>");
  EXPECT_EQ(data->data(QStringLiteral("image/png")), "png");
}

// What another program has on the clipboard, and how often it was asked for it.
class AskedData final : public QMimeData {
 public:
  AskedData(const QString& text, int& asked) : asked_(asked) { setText(text); }

 protected:
  QVariant retrieveData(const QString& type, QMetaType as) const override {
    ++asked_;
    return QMimeData::retrieveData(type, as);
  }

 private:
  int& asked_;
};

TEST_F(QtServices, ClipboardsOwnerIsAskedOnceAfterEachChange) {
  QtClipboard clipboard;
  int asked = 0;
  for (const char* text : {"first", "second"}) {
    asked = 0;
    QGuiApplication::clipboard()->setMimeData(new AskedData(QString::fromLatin1(text), asked));
    EXPECT_EQ(clipboard.GetFromClipboard(100), text);
    const int once = asked;
    EXPECT_GT(once, 0);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(clipboard.GetFromClipboard(100), text);
    EXPECT_EQ(clipboard.GetFromClipboard(3), "");
    EXPECT_EQ(asked, once);
  }
  ASSERT_TRUE(clipboard.PutToClipboard({"own", "", ""}));
  EXPECT_EQ(clipboard.GetFromClipboard(100), "own");
}

TEST_F(QtServices, ClipboardOfOthersMayHoldAnything) {
  QtClipboard clipboard;
  const QChar withEnd[] = {u'a', u'b', u'\0', u'x'};
  QGuiApplication::clipboard()->setText(QString(withEnd, 4));
  EXPECT_EQ(clipboard.GetFromClipboard(100), "ab");
  auto* picture = new QMimeData;
  picture->setData(QStringLiteral("image/png"), "x");
  QGuiApplication::clipboard()->setMimeData(picture);
  EXPECT_EQ(clipboard.GetFromClipboard(100), "");
  EXPECT_FALSE(clipboard.PutToClipboard({std::string(QtClipboard::kMaxBytes + 1, 'x'), "", ""}));
}

TEST_F(QtServices, SettingsComeBackAsTheyWere) {
  const TemporaryFolder folder;
  const Path file = folder.Folder() / "s.ini";
  RecordingLogger logger;
  const std::wstring awkward[] = {L"%s-SCBar-%d", L"a/b\\c", L"ñ=;", L"\"quoted\", list", L"@Variant", L"line\nline"};
  {
    QtSettings settings(L"Software\\X", file, logger);
    for (const std::wstring& text : awkward) settings.SetProfileText(text, text, text);
    settings.SetProfileInt(L"bars", L"width", -12);
    settings.SetRegistryText(L"LastInforme", L"report1, a");
  }
  const QtSettings settings(L"Software\\X", file, logger);
  for (const std::wstring& text : awkward) EXPECT_EQ(settings.ProfileText(text, text), text);
  EXPECT_EQ(settings.ProfileInt(L"bars", L"width", 7), -12);
  EXPECT_EQ(settings.ProfileInt(L"bars", L"height", 7), 7);
  EXPECT_EQ(settings.RegistryText(L"LastInforme"), L"report1, a");
}

TEST_F(QtServices, SettingsThatCannotBeReadAreSetAside) {
  const TemporaryFolder folder;
  RecordingLogger logger;
  const Path broken = TestHost::WriteFile(folder.Folder() / "s.ini", "somebody's notes\nx=1\n");
  const Path pipe = folder.Folder() / "pipe.ini";
  ::mkfifo(pipe.c_str(), 0600);
  for (const Path& file : {broken, pipe}) {
    QtSettings(L"Software\\X", file, logger).SetRegistryText(L"LastInforme", L"ours");
    EXPECT_EQ(QtSettings(L"Software\\X", file, logger).RegistryText(L"LastInforme"), L"ours");
  }
  EXPECT_EQ(TestHost::ReadFile(folder.Folder() / "s.ini.set-aside"), "somebody's notes\nx=1\n");
  EXPECT_TRUE(std::filesystem::is_fifo(folder.Folder() / "pipe.ini.set-aside"));
}

TEST_F(QtServices, LocaleNamesAndSeparatorsFollowTheLanguage) {
  const QtLocale german(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(german.DecimalSeparator(), L",");
  EXPECT_EQ(german.ThousandsSeparator(), L".");
  EXPECT_EQ(german.MonthName(3), L"März");
  EXPECT_EQ(german.DayName(0), L"Sonntag");
  EXPECT_EQ(german.DayName(6), L"Samstag");
  EXPECT_EQ(german.MonthName(0), L"");
  EXPECT_EQ(german.DayName(7), L"");
  std::tm date{};
  date.tm_year = 124;
  date.tm_mon = 1;
  date.tm_mday = 29;
  date.tm_hour = 13;
  EXPECT_EQ(german.DateTimeText(date), L"29.02.24 13:00");
}

}  // namespace
}  // namespace xrpt
