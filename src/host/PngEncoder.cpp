#include "host/PngEncoder.h"

#include <zlib.h>

namespace xrpt {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
constexpr char kFilterUp = 2;
constexpr int kColorRgb = 2;
constexpr int kColorRgba = 6;

void AppendBigEndian(std::string& out, std::size_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) out += static_cast<char>(value >> shift & 0xFF);
}

void AppendChunk(std::string& out, std::string_view type, std::string_view data) {
  AppendBigEndian(out, data.size());
  const std::size_t start = out.size();
  out += type;
  out += data;
  const auto* bytes = reinterpret_cast<const Bytef*>(out.data()) + start;
  AppendBigEndian(out, crc32(0, bytes, static_cast<uInt>(out.size() - start)));
}

std::string Header(const Picture& picture) {
  std::string header;
  AppendBigEndian(header, static_cast<std::size_t>(picture.width));
  AppendBigEndian(header, static_cast<std::size_t>(picture.height));
  header += '\x08';  // bits a sample
  header += static_cast<char>(picture.alpha.empty() ? kColorRgb : kColorRgba);
  header.append(3, '\0');  // deflate, adaptive filters, not interlaced
  return header;
}

std::string RowOf(const Picture& picture, int y) {
  std::string row;
  const std::uint8_t* rgb = picture.Row(y);
  const auto width = static_cast<std::size_t>(picture.width);
  for (std::size_t x = 0; x < width; ++x) {
    row.append(reinterpret_cast<const char*>(rgb + 3 * x), 3);
    if (!picture.alpha.empty()) row += static_cast<char>(picture.alpha[static_cast<std::size_t>(y) * width + x]);
  }
  return row;
}

// Each row as its difference from the one above, which is what compresses well.
std::string FilteredRows(const Picture& picture) {
  std::string out;
  std::string above(RowOf(picture, 0).size(), '\0');
  for (int y = 0; y < picture.height; ++y) {
    std::string row = RowOf(picture, y);
    out += kFilterUp;
    for (std::size_t i = 0; i < row.size(); ++i) out += static_cast<char>(row[i] - above[i]);
    above.swap(row);
  }
  return out;
}

std::string Deflated(const std::string& data) {
  uLongf size = compressBound(static_cast<uLong>(data.size()));
  std::string out(size, '\0');
  const auto* from = reinterpret_cast<const Bytef*>(data.data());
  compress2(reinterpret_cast<Bytef*>(out.data()), &size, from, static_cast<uLong>(data.size()), 6);
  out.resize(size);
  return out;
}

bool IsWhole(const Picture& picture) {
  if (picture.width <= 0 || picture.height <= 0) return false;
  const auto pixels = static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
  return picture.rgb.size() >= 3 * pixels && (picture.alpha.empty() || picture.alpha.size() >= pixels);
}

}  // namespace

std::string EncodePng(const Picture& picture) {
  if (!IsWhole(picture)) return {};
  std::string out(kSignature);
  AppendChunk(out, "IHDR", Header(picture));
  AppendChunk(out, "IDAT", Deflated(FilteredRows(picture)));
  AppendChunk(out, "IEND", {});
  return out;
}

}  // namespace xrpt
