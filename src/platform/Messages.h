// Messages between canvas, panels, frame and host, with the numbers hosts know them by.
#pragma once

#include <deque>
#include <string>

namespace xrpt {

inline constexpr int kUserMessage = 1024;

// The record of a search request, see platform/SearchRequest.h.
struct tagSearchReplace;

enum class Message {
  KeyDown = 256,
  Command = 273,  // `value` is its number
  SelectionOrGeometryChanged = kUserMessage + 13,
  CardChanged = kUserMessage + 14,
  TimerStateChanged = kUserMessage + 19,
  CardInserted = kUserMessage + 20,
  CardFound = kUserMessage + 22,
  ReplaceFinished = kUserMessage + 23,
  SearchRequested = kUserMessage + 25,
  CardAboutToBeDeleted = kUserMessage + 26,
  CardAnimationStarted = kUserMessage + 27,
  CardAnimationStopped = kUserMessage + 28,
  // Something could not be done; `value` is the text id of why. Ours, beyond the numbers that hosts use.
  Refused = kUserMessage + 500,
};

// Commands that are the frame's, by the numbers hosts know them by.
inline constexpr int kFindCommand = 57636;
inline constexpr int kReplaceCommand = 57641;

// `cardId` names the card a message is about (the single selected one, or the one about to go), empty for none;
// `value` is the message's number: 1 when only the selection changed, the repeat count and flags of a key, ...
struct MessageData {
  Message message = Message::CardChanged;
  std::wstring cardId;
  long long value = 0;
  int key = 0;                          // KeyDown, and the second number of TimerStateChanged
  tagSearchReplace* request = nullptr;  // SearchRequested only
};

class MessageTarget {
 public:
  virtual ~MessageTarget() = default;
  // Sent messages are answered before the call returns.
  virtual void OnMessage(const MessageData& message) = 0;
};

// Posted messages wait here until the application's loop, or a test, drains them.
class MessageQueue {
 public:
  void Post(MessageTarget* target, MessageData message) { waiting_.push_back({target, std::move(message)}); }
  bool IsEmpty() const { return waiting_.empty(); }
  // Delivers what waits, and what that posts in turn.
  void Drain() {
    while (!waiting_.empty()) {
      const Posted next = std::move(waiting_.front());
      waiting_.pop_front();
      if (next.target) next.target->OnMessage(next.message);
    }
  }
  // A target about to die takes its messages with it.
  void Forget(const MessageTarget* target) {
    std::erase_if(waiting_, [target](const Posted& posted) { return posted.target == target; });
  }

 private:
  struct Posted {
    MessageTarget* target;
    MessageData message;
  };
  std::deque<Posted> waiting_;
};

}  // namespace xrpt
