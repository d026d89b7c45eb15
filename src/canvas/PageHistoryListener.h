// Whoever keeps the order of steps over several pages hears of each page's own steps through this.
#pragma once

namespace xrpt {

class RVEditTemplateWnd;
struct UndoName;

class PageHistoryListener {
 public:
  virtual ~PageHistoryListener() = default;
  // `changesPage`: something that is saved changed, not the selection alone.
  virtual void OnStepTaken(RVEditTemplateWnd& page, const UndoName& name, bool changesPage) = 0;
  // The newest step goes on: the same field was changed again.
  virtual void OnStepJoined(RVEditTemplateWnd& page) = 0;
  // The newest step is gone as if it had never been.
  virtual void OnStepWithdrawn(RVEditTemplateWnd& page) = 0;
  // The oldest step had to go, because the page keeps no more.
  virtual void OnOldestDropped(RVEditTemplateWnd& page) = 0;
  virtual void OnStepUndone(RVEditTemplateWnd& page) = 0;
  virtual void OnStepRedone(RVEditTemplateWnd& page) = 0;
  virtual void OnHistoryCleared(RVEditTemplateWnd& page) = 0;
};

}  // namespace xrpt
