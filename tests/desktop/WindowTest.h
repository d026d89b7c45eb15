// The fixture of tests that open the editor's window: a host of their own with a copy of the sample reports, and hands
// to press, drag and type with.
#pragma once

#include <QApplication>
#include <QScrollBar>
#include <QTest>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/MainWindow.h"
#include "desktop/page/PageFrame.h"
#include "desktop/page/PageView.h"
#include "desktop/ribbon/Actions.h"
#include "editor/RVEditControlWnd.h"
#include "support/TestHost.h"

namespace xrpt {

// The widgets of a class of ours within another; the toolkit's own search knows only its classes.
template <class Widget>
std::vector<Widget*> PartsOf(const QWidget& widget) {
  std::vector<Widget*> parts;
  for (QWidget* part : widget.findChildren<QWidget*>()) {
    if (auto* wanted = dynamic_cast<Widget*>(part)) parts.push_back(wanted);
  }
  return parts;
}
template <class Widget>
Widget& PartOf(const QWidget& widget) {
  return *PartsOf<Widget>(widget).at(0);
}

inline constexpr wchar_t kSample[] = L"Consumo_mensual";

class WindowTest : public HostTest {
 protected:
  WindowTest() {
    std::filesystem::copy(Path(XRPT_EXAMPLES) / "config", host.Cfg(), std::filesystem::copy_options::recursive);
  }

  MainWindow& Window() {
    if (!window_) {
      window_ = std::make_unique<MainWindow>();
      window_->resize(1280, 900);
      window_->show();
      Settle();
    }
    return *window_;
  }
  void OpenSample() {
    Window().Open(kSample);
    Settle();
  }
  void CloseWindow() { window_.reset(); }

  RVEditControlWnd& Frame() { return Window().Frame(); }
  RVEditTemplateWnd& Page() { return Frame().CurrentPage(); }
  PageView& View() { return Window().Pages().View(); }
  // What happens in a moment of rest: posted messages, refreshes, painting.
  void Settle() {
    Frame().Queue().Drain();
    QCoreApplication::processEvents();
    Frame().Queue().Drain();
    QCoreApplication::processEvents();
  }

  const RVCardControl& Card(const std::wstring& id) { return *Page().Page().cards.Find(id); }
  // The card of the shown page whose field holds a text; empty when none does.
  std::wstring CardWith(std::string_view field, std::wstring_view text) {
    const CardList& cards = Page().Page().cards;
    for (std::size_t i = 0; i < cards.Size(); ++i) {
      const CardRow* row = FindField(cards[i].GetRuntimeClass().table, field);
      if (row && row->text(cards[i]) == text) return cards[i].id;
    }
    return {};
  }
  QPoint MiddleOf(const std::wstring& id) {
    const Rect rect = ToPixels(Page().Placement(), RectOf(Card(id)));
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }

  void Press(QPoint at, Qt::KeyboardModifiers held = {}) {
    QTest::mousePress(View().viewport(), Qt::LeftButton, held, at);
  }
  void Move(QPoint at) { QTest::mouseMove(View().viewport(), at); }
  void Release(QPoint at) {
    QTest::mouseRelease(View().viewport(), Qt::LeftButton, {}, at);
    Settle();
  }
  void Click(QPoint at, Qt::KeyboardModifiers held = {}) {
    Press(at, held);
    QTest::mouseRelease(View().viewport(), Qt::LeftButton, held, at);
    Settle();
  }
  void Drag(QPoint from, QPoint by) {
    Press(from);
    for (int part = 1; part <= 4; ++part) Move(from + by * part / 4);
    Release(from + by);
  }
  void Key(int key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(&View(), static_cast<Qt::Key>(key), held);
    Settle();
  }
  void Run(const char* command) {
    Window().AllActions().Find(command)->trigger();
    Settle();
  }

 private:
  std::unique_ptr<MainWindow> window_;
};

}  // namespace xrpt
