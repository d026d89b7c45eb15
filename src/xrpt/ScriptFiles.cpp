// The actions that open, save and name reports. Each prints what came of it; a save that failed ends the run.
#include "platform/Json.h"
#include "platform/Text.h"
#include "xrpt/Output.h"
#include "xrpt/ScriptRunner.h"

namespace xrpt {

// {"done": ..., "asked": [...], "name": ..., "id": ..., "modified": ...}
std::string ScriptRunner::Conclude(bool done) {
  const RVReport& report = frame_.Report();
  JsonWriter out;
  out.BeginObject();
  out.Key("done");
  out.Bool(done);
  out.Key("asked");
  out.BeginArray();
  for (const int textId : std::exchange(editor_.asked, {})) out.Int(textId);
  out.EndArray();
  out.Key("name");
  out.String(report.name);
  out.Key("id");
  out.String(report.id);
  out.Key("modified");
  out.Bool(report.modified);
  out.EndObject();
  xrpt::Print(out.Text() + "\n");
  return ToUtf8(TextOf(frame_.LastSave()));
}

std::string ScriptRunner::New(Arguments) {
  editor_.asked.clear();
  return Conclude(frame_.NewReport());
}

std::string ScriptRunner::Open(Arguments arguments) {
  editor_.asked.clear();
  editor_.chosen = FromUtf8(arguments[0]);
  const bool done = frame_.OpenFromList();
  editor_.chosen.reset();
  return Conclude(done);
}

std::string ScriptRunner::Save(Arguments) {
  editor_.asked.clear();
  return Conclude(frame_.Save());
}

std::string ScriptRunner::SaveAs(Arguments arguments) {
  editor_.asked.clear();
  return Conclude(arguments.empty() ? frame_.SaveUnderGeneratedName() : frame_.SaveAs(FromUtf8(arguments[0])));
}

std::string ScriptRunner::Rename(Arguments arguments) {
  editor_.asked.clear();
  frame_.Rename(FromUtf8(arguments[0]));
  return Conclude(true);
}

}  // namespace xrpt
