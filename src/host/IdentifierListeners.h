// Tells those who keep lists of reports or styles that a list changed.
#pragma once

#include "host/Listeners.h"
#include "platform/Host.h"

namespace xrpt {

class IdentifierListeners final : public IdentifierCache {
 public:
  using List = Listeners<GuidKind, bool>;

  int Add(List::Function listener) { return listeners_.Add(std::move(listener)); }
  void Remove(int number) { listeners_.Remove(number); }
  void invalidateGuid(GuidKind kind, bool changed) override { listeners_.Call(kind, changed); }

 private:
  List listeners_;
};

}  // namespace xrpt
