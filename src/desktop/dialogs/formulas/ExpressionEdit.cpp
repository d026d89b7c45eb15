#include "desktop/dialogs/formulas/ExpressionEdit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStringListModel>

#include "desktop/dialogs/formulas/ExpressionColors.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "formulas/ExpressionJudgement.h"

namespace xrpt {

namespace {

constexpr int kErrorGround = 56;  // of 255
constexpr int kRoundText = 10;    // pixels above and below together
constexpr int kWidestOffer = 460;
constexpr int kLongestHelp = 48;  // characters

QString LabelOf(const ExpressionChoice& choice) {
  QString help = ToQString(choice.help).simplified();
  if (help.size() > kLongestHelp) help = help.left(kLongestHelp) + QChar(0x2026);
  return help.isEmpty() ? ToQString(choice.name) : ToQString(choice.name) + QStringLiteral("   —   ") + help;
}

bool ClosesOffers(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return true;
    default:
      return false;
  }
}

}  // namespace

ExpressionEdit::ExpressionEdit(QWidget* parent)
    : QPlainTextEdit(parent), colors_(new ExpressionColors(document())), completer_(new QCompleter(this)) {
  setTabChangesFocus(true);
  setFrameShape(QFrame::StyledPanel);
  viewport()->setAutoFillBackground(false);  // the style fills the whole field
  completer_->setWidget(this);
  completer_->setModel(new QStringListModel(completer_));
  completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  completer_->setMaxVisibleItems(9);
  connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          [this](const QModelIndex& index) { Complete(static_cast<std::size_t>(index.row())); });
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    error_ = 0;
    if (edited) edited();
  });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { MarkPlaces(); });
  SetLines(3);
}

void ExpressionEdit::SetSources(const ExpressionSources& sources) {
  choices_ = ExpressionChoices(sources);
  SetFormulas(sources.formulas);
}

void ExpressionEdit::SetFormulas(const FormulaTable& formulas) {
  std::set<std::wstring, std::less<>> names;
  for (const Formula& formula : formulas) names.insert(formula.name);
  const QSignalBlocker quiet(this);
  colors_->SetKnownNames(std::move(names));
}

std::wstring ExpressionEdit::Text() const { return toPlainText().toStdWString(); }

void ExpressionEdit::SetText(const std::wstring& text) {
  const QString shown = ToQString(text);
  if (toPlainText() == shown) return;
  const QSignalBlocker quiet(this);
  setPlainText(shown);
  moveCursor(QTextCursor::End);
  MarkError(0);
}

void ExpressionEdit::Insert(const std::wstring& text, std::size_t caretBack) {
  QTextCursor cursor = textCursor();
  cursor.insertText(ToQString(text));
  cursor.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor, static_cast<int>(caretBack));
  setTextCursor(cursor);
  ensureCursorVisible();
}

void ExpressionEdit::SetLines(int lines, bool grows) {
  const int height = fontMetrics().lineSpacing() * lines + kRoundText;
  setMinimumHeight(height);
  setMaximumHeight(grows ? QWIDGETSIZE_MAX : height);
}

// --- Marks ---

void ExpressionEdit::MarkError(std::size_t position) {
  error_ = position;
  MarkPlaces();
}

QTextCursor ExpressionEdit::CursorOver(int begin, int end) const {
  QTextCursor cursor(document());
  cursor.setPosition(begin);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  return cursor;
}

void ExpressionEdit::MarkPlaces() {
  const TextPlaces places(toPlainText());
  QList<QTextEdit::ExtraSelection> marks;
  const auto mark = [&](std::size_t position, const QTextCharFormat& format) {
    marks.append({CursorOver(places.ToToolkit(position), places.ToToolkit(position + 1)), format});
  };
  const auto pair = PairAt(CurrentHost().expressions->TokenProducer().Tokens(places.Wide()),
                           places.FromToolkit(textCursor().position()));
  if (pair) {
    QTextCharFormat format;
    format.setBackground(pair->IsAlone() ? CurrentTheme().warning : CurrentTheme().pressed);
    format.setFontWeight(QFont::Bold);
    mark(pair->first, format);
    if (!pair->IsAlone()) mark(pair->second, format);
  }
  if (error_ > 0 && !places.Wide().empty()) {
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(CurrentTheme().wrong);
    QColor ground = CurrentTheme().wrong;
    ground.setAlpha(kErrorGround);
    format.setBackground(ground);
    mark(std::min(error_, places.Wide().size()) - 1, format);
  }
  setExtraSelections(marks);
}

// --- Names offered while typing ---

bool ExpressionEdit::IsOffering() const { return completer_->popup()->isVisible(); }

void ExpressionEdit::Offer(bool asked) {
  const TextPlaces places(toPlainText());
  offered_ = CompletionAt(places.Wide(), places.FromToolkit(textCursor().position()), choices_, asked);
  const std::wstring typed = places.Wide().substr(offered_.begin, offered_.length);
  QStringList labels;
  for (const std::size_t choice : offered_.choices) {
    if (!asked && offered_.choices.size() == 1 && choices_[choice].insert == typed) break;
    labels.append(LabelOf(choices_[choice]));
  }
  ShowOffers(labels);
}

void ExpressionEdit::ShowOffers(const QStringList& labels) {
  static_cast<QStringListModel*>(completer_->model())->setStringList(labels);
  if (labels.isEmpty()) return completer_->popup()->hide();
  QRect place = cursorRect();
  const int wanted = completer_->popup()->sizeHintForColumn(0) + completer_->popup()->verticalScrollBar()->width() + 24;
  place.setWidth(std::min(wanted, kWidestOffer));
  completer_->complete(place);
  completer_->popup()->setCurrentIndex(completer_->completionModel()->index(0, 0));
}

void ExpressionEdit::Complete(std::size_t offer) {
  if (offer >= offered_.choices.size()) return;
  const TextPlaces places(toPlainText());
  const std::size_t end = offered_.begin + offered_.length;
  const wchar_t next = end < places.Wide().size() ? places.Wide()[end] : L'\0';
  const ExpressionInsertion insertion = InsertionOf(choices_[offered_.choices[offer]], next);
  setTextCursor(CursorOver(places.ToToolkit(offered_.begin), places.ToToolkit(end)));
  Insert(insertion.text, insertion.caretBack);
}

// What closes the list of offers is the list's; Enter elsewhere is the dialog's.
void ExpressionEdit::keyPressEvent(QKeyEvent* event) {
  if (IsOffering() && ClosesOffers(*event)) return event->ignore();
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter) {
    if (finishing) finishing();
    return event->ignore();
  }
  if (event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier) return Offer(true);
  const QString before = toPlainText();
  QPlainTextEdit::keyPressEvent(event);
  if (toPlainText() != before) {
    Offer(false);
  } else if (IsOffering() && !event->text().isEmpty()) {
    completer_->popup()->hide();
  }
}

void ExpressionEdit::focusInEvent(QFocusEvent* event) {
  completer_->setWidget(this);
  QPlainTextEdit::focusInEvent(event);
  const bool isBack = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (entered && !isBack) entered();
}

void ExpressionEdit::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || !colors_) return;
  const QSignalBlocker quiet(this);
  colors_->rehighlight();
}

}  // namespace xrpt
