// The companion of a report: read as it was written, never in the way of a report.
#include <gtest/gtest.h>

#include "editor/NotesStore.h"
#include "editor/RVEditControlWnd.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

struct NotesStore : HostTest {
  CardNotes Some() {
    CardNotes notes;
    notes.Set(L"card-1", {true, false, 3, L"Head & <title>"});
    notes.Set(L"card-2", {false, true, 0, L""});
    notes.SetLines(L"page-1", {{10.5}, {20.0, 30.25}});
    return notes;
  }
  Path folder = host.Cfg() / "state" / "notes";
};

TEST_F(NotesStore, ReadsWhatItWrote) {
  const Path file = NotesFile(folder, L"{0A-1}");
  WriteNotes(file, Some());
  const CardNotes back = ReadNotes(file);
  EXPECT_EQ(back.Cards(), Some().Cards());
  EXPECT_EQ(back.Pages(), Some().Pages());
  WriteNotes(file, {});
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(NotesStore, NamesOnlyFilesOfItsFolder) {
  EXPECT_EQ(NotesFile(folder, L"../../etc/passwd").parent_path(), folder);
  EXPECT_EQ(NotesFile(folder, L"../.."), Path());
  EXPECT_EQ(NotesFile(folder, std::wstring(500, L'a')), Path());
  EXPECT_EQ(NotesFile({}, L"abc"), Path());
}

TEST_F(NotesStore, WhatIsNoneOfOursCountsAsNothing) {
  const Path file = NotesFile(folder, L"abc");
  std::filesystem::create_directories(folder);
  for (const char* text : {"", "<editorNotes>", "<other/>", "junk",
                           "<editorNotes><page><id>p</id><across>1e300</across><down>-4</down></page></editorNotes>",
                           "<editorNotes><card><id/><locked>T</locked></card></editorNotes>"}) {
    std::ofstream(file) << text;
    EXPECT_TRUE(ReadNotes(file).IsEmpty()) << text;
  }
}

TEST_F(NotesStore, NotesComeBackWithTheirReport) {
  AnsweringPort port;
  RVEditControlWnd frame(port, EditingOptions::Comfort());
  frame.RememberIn(folder);
  frame.SetTool(tool::kLabel);
  frame.CurrentPage().AddLabel(10, 10, 40, 8);
  ASSERT_TRUE(frame.SaveAs(L"noted"));
  frame.CurrentPage().NameCard(0, L"Head");
  frame.CurrentPage().LockSelected(true);
  ASSERT_TRUE(frame.NewReport());
  frame.CurrentPage().AddLabel(10, 10, 40, 8);
  EXPECT_TRUE(frame.CurrentPage().NoteOf(frame.CurrentPage().Page().cards[0]).IsEmpty());
  frame.OpenByName(L"noted");
  const CardNote& note = frame.CurrentPage().NoteOf(frame.CurrentPage().Page().cards[0]);
  EXPECT_EQ(note.name, L"Head");
  EXPECT_TRUE(note.locked);
  EXPECT_FALSE(frame.IsModified());
}

}  // namespace
}  // namespace xrpt
