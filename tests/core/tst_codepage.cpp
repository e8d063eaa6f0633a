#include "testmain.h"

#include "core/codepage.h"

#include <QStringDecoder>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

class TestCodepage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyByteRoundTrips()
    {
        QByteArray all(256, '\0');
        for (int byte = 0; byte < 256; ++byte)
            all[byte] = static_cast<char>(byte);
        const QString text = FromWindows1252(all);
        QCOMPARE(text.size(), 256);
        QCOMPARE(ToWindows1252(text), all);
    }

    // The fallback table must say what the platform's codec says.
    void builtInTableMatchesCodec()
    {
        QStringDecoder decoder("windows-1252");
        if (!decoder.isValid())
            QSKIP("no windows-1252 codec on this platform");
        for (int byte = 0; byte < 256; ++byte) {
            const char raw = static_cast<char>(byte);
            const QString decoded = decoder.decode(QByteArrayView(&raw, 1));
            QCOMPARE(BuiltInWindows1252(static_cast<unsigned char>(byte)), decoded[0].unicode());
        }
    }

    void encode_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("euro and quotes") << u"„5 €“ – Žaža"_s << "\x84" "5 \x80\x93 \x96 \x8e" "a\x9e" "a"_ba;
        QTest::newRow("beyond 16 bits is one character") << u"x😀y"_s << "x?y"_ba;
        QTest::newRow("lone surrogates") << QString(u"a"_s + QChar(0xd800) + u'b' + QChar(0xdc00) + QChar(0xd83d))
                                         << "a?b??"_ba;
    }
    void encode()
    {
        QFETCH(QString, text);
        QTEST(ToWindows1252(text), "bytes");
    }
};

HEFT_TEST(TestCodepage)
#include "tst_codepage.moc"
