// What checking a folder of reports costs beside reading and parsing the same files and doing nothing with them: on one
// thread and on two, with the host's checks and with all, and the most memory each takes.
#include <unistd.h>
#include <pugixml.hpp>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "Measure.h"
#include "formulas/checks/FolderCheck.h"
#include "host/DefaultHost.h"
#include "model/RVReport.h"

namespace xrpt {
namespace {

namespace fs = std::filesystem;

constexpr int kCards = 50;

// Reports of one plant mostly repeat each other's expressions; the worst is that none is like another.
bool allDifferent = false;
std::string Factor() {
  static int different = 0;
  return std::to_string(allDifferent ? ++different : 2);
}

std::string Common(int n) {
  const std::string place = std::to_string(n % 190) + ".25";
  return "<id>5B0C7A3E-0000-4000-8000-" + std::to_string(100000000000 + n) + "</id>\n<x>" + place + "</x>\n<y>" +
         place + "</y>\n<width>42.00</width>\n<height>9.50</height>\n<color>000000</color>\n";
}

std::string LabelPart(int n) {
  return Common(n) +
         "<horizontalAlign>LEFT</horizontalAlign>\n<verticalAlign>CENTER</verticalAlign>\n<text>\n<textStr>Potencia "
         "máxima " +
         std::to_string(n) +
         "</textStr>\n</text>\n<font>\n<name>Arial</name>\n<style>NORMAL</style>\n<orientation>0.00</orientation>\n"
         "<size>10.00</size>\n<color>000000</color>\n</font>\n";
}

std::string Element(const std::string& tag, const std::string& inside) {
  return "<" + tag + ">\n" + inside + "</" + tag + ">\n";
}

std::string FormulePart(int n) {
  return LabelPart(n) + "<value>[MAIN.P" + std::to_string(n % 7) + "] / 1000 + OFFSET * " + Factor() +
         "</value>\n<integers>-1</integers>\n<decimals>3</decimals>\n"
         "<thousandSeparator>T</thousandSeparator>\n";
}

std::string Bar(int n) {
  return Element("analogBar", Common(n) +
                                  "<typeVar>NORMAL</typeVar>\n<type>MAX_MIN</type>\n<orientation>H</orientation>\n"
                                  "<positionValue>TOP</positionValue>\n<variable>MAIN.P1</variable>\n<decimals>2"
                                  "</decimals>\n<maxValue>100</maxValue>\n<minValue>0</minValue>\n<preMaxValue>80"
                                  "</preMaxValue>\n<alarmMaxValue>90</alarmMaxValue>\n");
}

std::string Graph(int n) {
  std::string series;
  for (int i = 0; i < 3; ++i) {
    series += Element("variable", "<id>[MAIN.P" + std::to_string(i) +
                                      "]</id>\n<color>804020</color>\n<type>BAR</type>\n<style>POINT</style>\n"
                                      "<width>2</width>\n");
  }
  return Element("reportGraph", Common(n) + "<period>AUTO</period>\n<values>6</values>\n" + series);
}

std::string Conditioned(int n) {
  return Element("conditioned",
                 Common(n) +
                     Element("control", "<condition>[MAIN.P1] &gt; OFFSET &amp;&amp; [MAIN.P2] &lt; " + Factor() +
                                            "</condition>\n" + Element("label", LabelPart(n))) +
                     Element("control", "<condition>[MAIN.P1] &lt;= " + Factor() + "</condition>\n" +
                                            Element("formule", FormulePart(n))));
}

std::string Image(int n) {
  return Element("staticImage", Common(n) + "<image>\n<imageId>logo</imageId>\n<imagePath>./</imagePath>\n</image>\n");
}

std::string Date(int n) {
  return Element("date", LabelPart(n) + "<pattern>dd/MM/yyyy</pattern>\n<value>01/11/2026 00:00:00</value>\n");
}

// Texts are what reports are mostly made of; every kind is there.
std::string Card(int n) {
  switch (n % 15) {
    case 2:
    case 9:
    case 13:
      return Element("formule", FormulePart(n));
    case 3:
      return Date(n);
    case 6:
      return Image(n);
    case 7:
      return Bar(n);
    case 11:
      return Conditioned(n);
    case 14:
      return Graph(n);
    default:
      return Element("label", LabelPart(n));
  }
}

std::string ReportText(int number) {
  std::string cards;
  for (int n = 0; n < kCards; ++n) cards += Card(n);
  return Element(
      "reportLayout",
      "<id>R" + std::to_string(number) + "</id>\n<name>report" + std::to_string(number) + "</name>\n" +
          Element("page", "<id>p</id>\n<width>210.00</width>\n<height>297.00</height>\n" + cards) +
          "<formules>\n<formule>\n<name>OFFSET</name>\n<text>[MAIN.P3] * 2</text>\n</formule>\n</formules>\n");
}

void WriteReports(const Path& folder, int count) {
  for (int i = 0; i < count; ++i) {
    std::ofstream(folder / ("R" + std::to_string(100000 + i) + ".report.xrpt"), std::ios::binary) << ReportText(i);
  }
  std::string plant;
  for (int i = 0; i < 10; ++i) plant += "<variable><id>P" + std::to_string(i) + "</id></variable>";
  std::ofstream(folder / "devices.xml") << "<devices><device><id>MAIN</id>" + plant + "</device></devices>";
  std::ofstream(folder / "logo.img") << "";
}

double ParseWithTheLibrary(const std::vector<Path>& files) {
  for (const Path& file : files) {
    pugi::xml_document document;
    document.load_file(file.c_str());
  }
  return 0.0;
}

double ParseWithOurLayer(const std::vector<Path>& files) {
  for (const Path& file : files) {
    XmlDocument document;
    document.Load(file);
  }
  return 0.0;
}

std::size_t CheckAll(const Path& folder, int jobs, const CheckChoice& choice) {
  std::size_t findings = 0;
  FolderCheck check{folder, choice, jobs};
  check.done = [&findings](const ReportFindings& report, std::size_t, std::size_t) {
    findings += report.findings.size();
  };
  CheckFolder(check);
  return findings;
}

void Compare(std::vector<bench::Row>& rows, int repetitions) {
  bench::RunInTurns(rows, repetitions);
  const bench::Row& bare = rows.front();
  for (const bench::Row& row : rows) {
    const double wall = row.Best(&bench::Figures::wall);
    const double processor = row.Best(&bench::Figures::processor);
    std::printf("  %-40s wall %6.2f s, ratio %5.2f | processor %6.2f s, ratio %5.2f | %6.1f MB\n", row.name.c_str(),
                wall, wall / bare.Best(&bench::Figures::wall), processor,
                processor / bare.Best(&bench::Figures::processor), row.Best(&bench::Figures::megabytes));
  }
}

void MeasureFolder(const Path& folder, int count, int repetitions) {
  WriteReports(folder, count);
  const std::vector<Path> files = CurrentHost().files->List(folder, kReportEnding);
  std::printf("%zu reports of %d cards, %.1f kB each, expressions %s; findings of the host's checks: %zu\n",
              files.size(), kCards, static_cast<double>(fs::file_size(files.front())) / 1000.0,
              allDifferent ? "all different" : "often alike", CheckAll(folder, 1, CheckChoice::AllHost()));
  std::fflush(stdout);  // before the first child takes a copy along
  const auto check = [&folder](int jobs, const CheckChoice& choice) {
    return [&folder, jobs, choice] { return static_cast<double>(CheckAll(folder, jobs, choice)); };
  };
  std::vector<bench::Row> rows = {
      {"read and parse bare, the XML library", [&] { return ParseWithTheLibrary(files); }},
      {"read and parse, our XML layer", [&] { return ParseWithOurLayer(files); }},
      {"host's checks, one thread", check(1, CheckChoice::AllHost())},
      {"host's checks, two threads", check(2, CheckChoice::AllHost())},
      {"all checks, one thread", check(1, CheckChoice::All())},
  };
  Compare(rows, repetitions);
}

int Run(int count, int repetitions) {
  std::string pattern = (fs::temp_directory_path() / "xrpt-bench-XXXXXX").string();
  const Path folder = ::mkdtemp(pattern.data());
  HostOptions options;
  options.cfgFolder = options.imagesFolder = options.stateFolder = folder;
  options.settingsFile = folder / "settings.ini";
  const std::unique_ptr<Host> host = MakeDefaultHost(options);
  InstallHost(host.get());
  for (const bool different : {false, true}) {
    allDifferent = different;
    MeasureFolder(folder, count, repetitions);
  }
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  return 0;
}

}  // namespace
}  // namespace xrpt

// Takes the number of reports and of repetitions.
int main(int argc, char** argv) {
  return xrpt::Run(argc > 1 ? std::atoi(argv[1]) : 10000, argc > 2 ? std::atoi(argv[2]) : 3);
}
