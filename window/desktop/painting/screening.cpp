#include "window/desktop/painting/screening.h"

#include <QBuffer>
#include <QImageReader>
#include <QXmlStreamReader>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr long long kMostElements = 50'000;   // with all repetitions
constexpr long long kMostPixels = 4'000'000;  // of all pictures within it

// Why a picture written into the reference isn't drawn: what its bytes are counts, not what it is called, and
// its size is known before it is unpacked.
std::string WhyNotUnpack(QStringView data, long long& pixels) {
  constexpr QStringView kMark = u"base64,";
  const qsizetype mark = data.lastIndexOf(kMark);
  const QByteArray written = data.mid(mark + kMark.size()).toLatin1().simplified().replace(' ', "");
  const auto unpacked = QByteArray::fromBase64Encoding(written, QByteArray::AbortOnBase64DecodingErrors);
  if (mark < 0 || !unpacked) return "it holds what is no PNG or JPEG";
  QByteArray bytes = *unpacked;
  const char* const format = bytes.startsWith("\x89PNG\r\n\x1a\n") ? "png"
                             : bytes.startsWith("\xff\xd8\xff")    ? "jpeg"
                                                                   : nullptr;
  if (!format) return "it holds what is no PNG or JPEG";
  QBuffer buffer(&bytes);
  const QSize size = QImageReader(&buffer, format).size();
  if (size.isEmpty()) return "it holds what is no PNG or JPEG";
  pixels += static_cast<long long>(size.width()) * size.height();
  return pixels > kMostPixels ? "it holds too large a picture" : "";
}

// "#..." and "data:" stay within the file.
std::string WhyNotFollow(QStringView reference, long long& pixels) {
  reference = reference.trimmed();
  if (reference.startsWith(u'#')) return "";
  if (reference.startsWith(u"data:", Qt::CaseInsensitive)) return WhyNotUnpack(reference, pixels);
  return "it refers to another file";
}

// Every url(...) of a style or an attribute. However many end at the same place, it is looked for once.
std::string WhyNotFollowUrls(QStringView value, long long& pixels) {
  qsizetype at = 0, end = 0;
  while ((at = value.indexOf(u"url(", at, Qt::CaseInsensitive)) >= 0) {
    at += 4;
    if (end < at) end = value.indexOf(u')', at);
    if (end < 0) end = value.size();
    QStringView inside = value.sliced(at, end - at).trimmed();
    if (inside.startsWith(u'"') || inside.startsWith(u'\'')) inside = inside.mid(1);
    if (inside.endsWith(u'"') || inside.endsWith(u'\'')) inside.chop(1);
    if (std::string why = WhyNotFollow(inside, pixels); !why.empty()) return why;
  }
  return value.contains(u"@import", Qt::CaseInsensitive) ? "it refers to another file" : "";
}

struct Part {
  long long own = 1;                 // elements
  std::vector<std::string> repeats;  // by their names
};

// How many elements drawing a part takes; too many where a part holds itself.
long long Weigh(const std::string& name, const std::map<std::string, Part>& parts,
                std::map<std::string, long long>& known, int depth) {
  constexpr int kDeepest = 100;
  const auto part = parts.find(name);
  if (part == parts.end()) return 1;
  if (depth > kDeepest) return kMostElements + 1;
  if (const auto found = known.find(name); found != known.end()) return found->second;
  known[name] = kMostElements + 1;  // met again below itself
  long long weight = part->second.own;
  for (const std::string& each : part->second.repeats)
    weight = std::min(kMostElements + 1, weight + Weigh(each, parts, known, depth + 1));
  return known[name] = weight;
}

}  // namespace

std::string WhyNotDraw(std::string_view svg) {
  QXmlStreamReader reader(QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
  std::map<std::string, Part> parts;
  std::vector<std::string> open;  // the named elements around; "" is the whole picture
  std::vector<bool> named;
  long long pixels = 0;
  open.emplace_back();
  parts[""];
  while (!reader.atEnd()) {
    switch (reader.readNext()) {
      case QXmlStreamReader::DTD:
        if (!reader.entityDeclarations().isEmpty()) return "it declares entities";
        break;
      case QXmlStreamReader::StartElement: {
        const auto attributes = reader.attributes();
        const std::string id = attributes.value(QLatin1String("id")).toString().toStdString();
        for (const std::string& around : open) ++parts[around].own;
        named.push_back(!id.empty());
        if (!id.empty()) {
          open.push_back(id);
          parts[id];
        }
        constexpr size_t kDeepest = 200;
        if (named.size() > kDeepest) return "it is nested too deeply";
        for (const auto& attribute : attributes) {
          const bool refers = attribute.name() == u"href" || attribute.name() == u"src";
          std::string why = refers ? WhyNotFollow(attribute.value(), pixels) : "";
          if (why.empty()) why = WhyNotFollowUrls(attribute.value(), pixels);
          if (!why.empty()) return why;
          if (refers && attribute.value().trimmed().startsWith(u'#')) {
            const std::string target = attribute.value().trimmed().mid(1).toString().toStdString();
            for (const std::string& around : open) parts[around].repeats.push_back(target);
          }
        }
        break;
      }
      case QXmlStreamReader::EndElement:
        if (named.back()) open.pop_back();
        named.pop_back();
        break;
      case QXmlStreamReader::Characters:
        if (std::string why = WhyNotFollowUrls(reader.text(), pixels); !why.empty()) return why;
        break;
      case QXmlStreamReader::ProcessingInstruction:
        if (reader.processingInstructionTarget() == u"xml-stylesheet") return "it refers to another file";
        break;
      default:
        break;
    }
    constexpr size_t kMostRepeats = 20'000;
    if (parts[""].repeats.size() > kMostRepeats) return "it repeats too much";
  }
  if (reader.hasError()) return "it is no picture";
  std::map<std::string, long long> known;
  return Weigh("", parts, known, 0) > kMostElements ? "it repeats too much" : "";
}
