#include "host/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QObject>

namespace xrpt {
namespace {

QClipboard* Clipboard() { return qobject_cast<QGuiApplication*>(qApp) ? QGuiApplication::clipboard() : nullptr; }

QByteArray BytesOf(const std::string& text) { return {text.data(), static_cast<qsizetype>(text.size())}; }

void SetFlavour(QMimeData& data, const char* type, const std::string& bytes) {
  if (!bytes.empty()) data.setData(QString::fromLatin1(type), BytesOf(bytes));
}

// Some programs put a text with its terminating NUL on the clipboard; what follows it is no text.
std::string TextOf(const QClipboard& clipboard) {
  const QMimeData* data = clipboard.mimeData();
  if (!data || !data->hasText()) return {};
  const QString text = data->text();
  if (static_cast<std::size_t>(text.size()) > QtClipboard::kMaxBytes) return {};
  const std::string bytes = text.toStdString();
  return bytes.size() <= QtClipboard::kMaxBytes ? bytes.substr(0, bytes.find('\0')) : std::string();
}

}  // namespace

bool QtClipboard::PutToClipboard(const ClipboardContent& content) {
  QClipboard* clipboard = Clipboard();
  if (!clipboard || content.text.size() + content.svg.size() + content.png.size() > kMaxBytes) return false;
  auto data = std::make_unique<QMimeData>();
  if (!content.text.empty()) data->setText(QString::fromUtf8(BytesOf(content.text)));
  SetFlavour(*data, "image/svg+xml", content.svg);
  SetFlavour(*data, "image/png", content.png);
  clipboard->setMimeData(data.release());
  return true;
}

QtClipboard::QtClipboard() = default;
QtClipboard::~QtClipboard() = default;

void QtClipboard::Watch(const QClipboard& clipboard) {
  if (watcher_) return;
  watcher_ = std::make_unique<QObject>();
  QObject::connect(&clipboard, &QClipboard::dataChanged, watcher_.get(), [this] { text_.reset(); });
}

std::string QtClipboard::GetFromClipboard(std::size_t limit) {
  const QClipboard* clipboard = Clipboard();
  if (!clipboard) return {};
  Watch(*clipboard);
  if (!text_) text_ = TextOf(*clipboard);
  return text_->size() <= limit ? *text_ : std::string();
}

}  // namespace xrpt
