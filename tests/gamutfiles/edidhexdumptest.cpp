// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "sampleedids.h"

#include <QtTest>

using namespace gamutfiles;
using namespace samplefiles;

class EdidHexDumpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hexDumps_data();
    void hexDumps();
    void noHexDumps();
};

void EdidHexDumpTest::hexDumps_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("warning");
    const QByteArray edid = hdrDisplay("\x8A\x6A\x02");
    const auto lines = [&edid](const QByteArray &indent, char separator, bool addresses) {
        QByteArray text;
        for (int at = 0; at < edid.size(); at += 16) {
            text += indent + (addresses ? QByteArray::number(at, 16).rightJustified(8, '0') + ": " : QByteArray());
            text += (separator == '\0' ? edid.mid(at, 16).toHex() : edid.mid(at, 16).toHex(separator)) + '\n';
        }
        return text;
    };
    const auto row = [](const char *name, const QByteArray &text, const QString &warning = {}) {
        QTest::newRow(name) << text << warning;
    };
    row("one line", edid.toHex());
    row("lines", lines("", ' ', false));
    row("capitals, other line ends", lines("", ' ', false).toUpper().replace('\n', "\r\n"));
    row("addresses", lines("", ' ', true));
    row("0x", "0x" + edid.toHex(',').replace(",", ", 0x"));
    row("properties of an output",
        "HDMI-1 connected\n\tCTM: 0 1\n\tEDID: \n" + lines("\t\t", '\0', false)
            + "\tGAMMA_LUT_SIZE: 4096 \n\tlink-status: Good\n");
    row("decoded", "edid-decode (hex):\n\n" + lines("", ' ', false) + "\n----------------\n\n10\n");
    const QString several = QStringLiteral("holds 2 EDIDs, of which only the first is read");
    row("two displays", "first:\n" + lines("  ", '\0', false) + "second:\n" + lines("  ", '\0', false), several);
    row("two without a word", lines("  ", '\0', false) + lines("  ", '\0', false), several);
}

void EdidHexDumpTest::hexDumps()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, warning);
    const auto edid = edidFromHexDump(text);
    QVERIFY2(edid, qPrintable(edid.error()));
    QCOMPARE(*edid, hdrDisplay("\x8A\x6A\x02"));
    QCOMPARE(messages(edid.warnings()).join('\n'), warning);
}

void EdidHexDumpTest::noHexDumps()
{
    QVERIFY(!edidFromHexDump(""));
    QVERIFY(!edidFromHexDump("name,Y,x,y\nred,1,0.6,0.3\n"));
    QVERIFY(!edidFromHexDump(edid().left(127).toHex()));
    QVERIFY(!edidFromHexDump(edid().toHex().replace(100, 1, "g")));
    QVERIFY(!edidFromHexDump(QByteArray(256, 'a')));
    QVERIFY(!edidFromHexDump(edid().toHex().leftJustified(maximumHexDumpBytes + 1)));
    QVERIFY(edidFromHexDump(edid().toHex().leftJustified(maximumHexDumpBytes)));
}

QTEST_GUILESS_MAIN(EdidHexDumpTest)
#include "edidhexdumptest.moc"
