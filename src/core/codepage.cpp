#include "codepage.h"

#include <QHash>
#include <QStringDecoder>

#include <array>

namespace heft {

namespace {

// Bytes 0x80 to 0x9F; everything else is Latin-1. The five bytes the code
// page leaves undefined keep their C1 code point, as the codec does, so that
// every byte survives a round trip.
constexpr std::array<char16_t, 32> HighBlock = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

struct CodeTables {
    std::array<char16_t, 256> toUnicode{};
    QHash<char16_t, char> fromUnicode;
};

// The platform's codec decides what each of the 256 bytes means. Encoding
// goes through the inverse table rather than the encoder, because the encoder
// writes SUB (0x1A) for a character outside the code page, where the files
// want "?", and silently drops a lone surrogate at the end of a text.
CodeTables BuildTables()
{
    QByteArray allBytes(256, '\0');
    for (int byte = 0; byte < 256; ++byte)
        allBytes[byte] = static_cast<char>(byte);
    QStringDecoder decoder("windows-1252");
    const QString decoded = decoder.isValid() ? decoder.decode(allBytes) : QString();
    const bool useCodec = decoded.size() == 256 && !decoder.hasError();

    CodeTables tables;
    for (int byte = 0; byte < 256; ++byte) {
        const char16_t unicode =
            useCodec ? decoded[byte].unicode() : BuiltInWindows1252(static_cast<unsigned char>(byte));
        tables.toUnicode[byte] = unicode;
        tables.fromUnicode.insert(unicode, static_cast<char>(byte));
    }
    return tables;
}

const CodeTables& Tables()
{
    static const CodeTables tables = BuildTables();
    return tables;
}

} // namespace

char16_t BuiltInWindows1252(unsigned char byte)
{
    return byte >= 0x80 && byte < 0xA0 ? HighBlock[byte - 0x80] : char16_t(byte);
}

QByteArray ToWindows1252(const QString& text, qsizetype* unencodable)
{
    const CodeTables& tables = Tables();
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unicode = text[i].unicode();
        if (unicode < 0x80) {
            bytes += static_cast<char>(unicode);
            continue;
        }
        // A character beyond the 16-bit range is one character: one "?".
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
        const char byte = tables.fromUnicode.value(unicode, '?');
        if (byte == '?' && unencodable)
            ++*unencodable;
        bytes += byte;
    }
    return bytes;
}

QString FromWindows1252(const QByteArray& bytes)
{
    const CodeTables& tables = Tables();
    QString text(bytes.size(), Qt::Uninitialized);
    QChar* out = text.data();
    for (const char byte : bytes)
        *out++ = QChar(tables.toUnicode[static_cast<unsigned char>(byte)]);
    return text;
}

QString Utf8ToText(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes);
}

} // namespace heft
