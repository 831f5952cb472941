// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/textencoding_p.h>

#include <QtTest>

using namespace gamutfiles;

Q_DECLARE_METATYPE(gamutfiles::TextEncoding)

class TextEncodingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void recognizes_data();
    void recognizes();
    void everyWindowsCharacter();
    void doubtIsSaid();
    void statedEncodingIsUsed();
    void refuses_data();
    void refuses();
};

namespace {

QByteArray utf16(const QString &text, bool littleEndian)
{
    QByteArray bytes;
    for (const QChar c : text) {
        const char low = char(c.unicode() & 0xFF);
        const char high = char(c.unicode() >> 8);
        bytes.append(littleEndian ? low : high).append(littleEndian ? high : low);
    }
    return bytes;
}

const QString european = QStringLiteral("Weiß;Größe;é;m²;’");
const QString chinese = QStringLiteral("名称,亮度(cd/㎡),色坐标x\n红,1.5,0.31");

} // namespace

void TextEncodingTest::recognizes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<TextEncoding>("encoding");
    const auto row = [](const char *name, const QByteArray &bytes, const QString &text, TextEncoding encoding) {
        QTest::newRow(name) << bytes << text << encoding;
    };
    row("ASCII", "a,b\r\n", "a,b\r\n", TextEncoding::Utf8);
    row("empty", "", "", TextEncoding::Utf8);
    row("UTF-8", chinese.toUtf8(), chinese, TextEncoding::Utf8);
    row("UTF-8 with a mark", "\xEF\xBB\xBF" + european.toUtf8(), european, TextEncoding::Utf8);
    row("UTF-16LE with a mark", "\xFF\xFE" + utf16(chinese, true), chinese, TextEncoding::Utf16LittleEndian);
    row("UTF-16BE with a mark", "\xFE\xFF" + utf16(chinese, false), chinese, TextEncoding::Utf16BigEndian);
    row("UTF-16LE", utf16(chinese, true), chinese, TextEncoding::Utf16LittleEndian);
    row("UTF-16BE", utf16(european, false), european, TextEncoding::Utf16BigEndian);
    const QString face = QString::fromUtf8("a,\xF0\x9F\x94\xB4");
    row("UTF-16 with a surrogate pair", "\xFF\xFE" + utf16(face, true), face, TextEncoding::Utf16LittleEndian);
    row("Windows-1252",
        "Wei\xDF;Gr\xF6\xDF"
        "e;\xE9;m\xB2;\x92",
        european, TextEncoding::Windows1252);
    row("one umlaut", "Gr\xFCn", QStringLiteral("Grün"), TextEncoding::Windows1252);
    row("a word that is Chinese by its bytes",
        "Gr\xF6\xDF"
        "e",
        QStringLiteral("Größe"), TextEncoding::Windows1252);
    row("raised two in brackets", "Y [cd/m\xB2]", QStringLiteral("Y [cd/m²]"), TextEncoding::Windows1252);
    row("no-break space",
        "1\xA0"
        "234,5",
        QStringLiteral("1\u00A0234,5"), TextEncoding::Windows1252);
    row("GBK", "\xC3\xFB\xB3\xC6,\xC1\xC1\xB6\xC8(cd/\xA9\x4F),\xC9\xAB\xD7\xF8\xB1\xEAx\n\xBA\xEC,1.5,0.31", chinese,
        TextEncoding::Gb18030);
    row("one Chinese character", "\xBA\xEC,1", QStringLiteral("红,1"), TextEncoding::Gb18030);
    // Latin names, and a unit that is all that tells.
    row("square metre of GBK alone", "name,Lv(cd/\xA9\x4F),x,y\nred,1,0.6,0.3",
        QStringLiteral("name,Lv(cd/㎡),x,y\nred,1,0.6,0.3"), TextEncoding::Gb18030);
    row("raised two of GB18030 alone", "Lv(cd/m\x81\x30\x85\x35),x", QStringLiteral("Lv(cd/m²),x"),
        TextEncoding::Gb18030);
    row("raised two in front of each separator",
        "cd/m\xB2,cd/m\xB2;cd/m\xB2\tcd/m\xB2)cd/m\xB2]cd/m\xB2 \"cd/m\xB2\"\r\n",
        QStringLiteral("cd/m²,cd/m²;cd/m²\tcd/m²)cd/m²]cd/m² \"cd/m²\"\r\n"), TextEncoding::Windows1252);
    row("four bytes of GB18030", "\xBA\xEC\xB0\xD7\xBA\xEC\xB0\xD7\x81\x30\x84\x36", QStringLiteral("红白红白¥"),
        TextEncoding::Gb18030);
}

void TextEncodingTest::recognizes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QFETCH(TextEncoding, encoding);
    const auto decoded = decodeText(bytes);
    QVERIFY2(decoded, qPrintable(decoded.error()));
    QCOMPARE(decoded->text, text);
    QCOMPARE(decoded->encoding, encoding);
    QVERIFY(decoded.warnings().isEmpty());
    QCOMPARE(decodeText(bytes, encoding)->text, text);
}

void TextEncodingTest::everyWindowsCharacter()
{
    // Bytes 0x80 to 0x9F, without the five that are not assigned.
    const QByteArray bytes("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99"
                           "\x9A\x9B\x9C\x9E\x9F\xA0\xFF");
    const auto decoded = decodeText(bytes, TextEncoding::Windows1252);
    QVERIFY(decoded);
    QCOMPARE(decoded->text, QStringLiteral("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ\u00A0ÿ"));
}

void TextEncodingTest::doubtIsSaid()
{
    // 红 and 镕, which GB 2312 has not.
    const auto decoded = decodeText("\xBA\xEC,\xE9\x46");
    QVERIFY(decoded);
    QCOMPARE(decoded->encoding, TextEncoding::Windows1252);
    QCOMPARE(decoded.warnings().size(), 1);
    QCOMPARE(decoded.warnings()[0].text,
        QStringLiteral("is read as Windows-1252 text but could be GB18030; state the encoding if names look wrong"));
}

void TextEncodingTest::statedEncodingIsUsed()
{
    QCOMPARE(decodeText("Gr\xF6\xDF"
                        "e",
                 TextEncoding::Gb18030)
                 ->text,
        QStringLiteral("Gr鲞e"));
    QCOMPARE(decodeText("ab", TextEncoding::Utf16BigEndian)->text, QString(QChar(0x6162)));
    QVERIFY(!decodeText("Gr\xFCn", TextEncoding::Utf8));
}

void TextEncodingTest::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &bytes, const char *error) {
        QTest::newRow(name) << bytes << QString::fromUtf8(error);
    };
    row("null character", QByteArray("a,1,\0b", 6), "is not UTF-8 text");
    row("mark and bad UTF-8",
        "\xEF\xBB\xBF"
        "a\xFF",
        "is not UTF-8 text");
    row("half a UTF-16 character",
        QByteArray("\xFF\xFE"
                   "a",
            3),
        "is not UTF-16LE text");
    row("lone high surrogate",
        QByteArray("\xFF\xFE\x00\xD8"
                   "a\0",
            6),
        "is not UTF-16LE text");
    row("lone low surrogate", QByteArray("\xFE\xFF\xDC\x00", 4), "is not UTF-16BE text");
    row("high surrogate at the end", QByteArray("\xFE\xFF\xD8\x00", 4), "is not UTF-16BE text");
    row("null character in UTF-16",
        QByteArray("\xFF\xFE"
                   "a\0\0\0",
            6),
        "is not UTF-16LE text");
    row("numbers of two bytes", QByteArray("\1\0\2\0\3\0", 6), "is not UTF-8 text");
    row("picture", "\x89PNG\r\n\x1A\n", "is not UTF-8 text");
    row("unassigned in Windows-1252", "a\x81 ", "is not Windows-1252 text");
}

void TextEncodingTest::refuses()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    const auto decoded = decodeText(bytes);
    QVERIFY(!decoded);
    QCOMPARE(decoded.error(), error);
}

QTEST_GUILESS_MAIN(TextEncodingTest)
#include "textencodingtest.moc"
