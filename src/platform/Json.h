// JSON for output: a value is appended to a text as it is written, commas and escapes are the writer's.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace xrpt {

class JsonWriter {
 public:
  // `indent` 0 writes everything on one line.
  explicit JsonWriter(int indent = 0) : indent_(indent) {}

  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }
  void Key(std::string_view name);

  void String(std::wstring_view text);
  void String(std::string_view utf8);
  void Int(long long value);
  // Every digit that tells the value apart; null for what is no finite number.
  void Number(double value);
  void Bool(bool value);

  const std::string& Text() const { return text_; }

 private:
  void Open(char bracket);
  void Close(char bracket);
  // Comma and line break before the next value or key.
  void Separate();
  void NewLine();

  std::string text_;
  std::vector<bool> hasItems_;  // one a level
  int indent_;
  bool afterKey_ = false;
};

}  // namespace xrpt
