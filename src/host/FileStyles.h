// Text styles as the style files of the configuration folder hold them. The folder is listed once and each file read at
// most once, until styles change: a report of ten thousand styled cards costs one listing.
#pragma once

#include <chrono>
#include <map>
#include <mutex>

#include "platform/Host.h"
#include "platform/SystemNames.h"

namespace xrpt {

class FileStyles final : public StyleTable {
 public:
  static constexpr std::wstring_view kEnding = kStyleEnding;
  using Clock = std::chrono::steady_clock;

  // The folder is looked at for changes made by other programs at most once in `interval`.
  explicit FileStyles(Host& host, Clock::duration interval = std::chrono::seconds(1))
      : host_(host), interval_(interval) {}

  bool StyleId2Name(std::wstring_view id, std::wstring& name) override;
  bool StyleName2Id(std::wstring_view name, std::wstring& id) override;
  std::optional<StyleFont> Font(std::wstring_view name) override;
  // The next question lists the folder again.
  void Forget();

 private:
  struct Entry {
    Path file;
    std::wstring name;  // of the file; what cards keep
    std::wstring id;    // of the file's name, or of its content once read
    std::optional<StyleFont> font;
    bool isRead = false;
    bool isValid = false;
  };

  void Refresh();
  void ListFolder();
  void AddNames();
  Entry* FindByName(std::wstring_view name);
  Entry* FindById(std::wstring_view id);
  void Read(Entry& entry);

  Host& host_;
  std::mutex lock_;  // checks in the background ask too
  Clock::duration interval_;
  bool isListed_ = false;
  Clock::time_point lookedAt_;
  Path folder_;
  FileStamp folderStamp_;
  std::vector<Entry> entries_;
  std::map<std::wstring, std::size_t, std::less<>> byName_;
};

}  // namespace xrpt
