// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/edidblock_p.h>

#include <QtTest>

/*! A build without colord: it refuses EDIDs, and says why. */
class EdidNotReadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theReasonIsGiven();
};

void EdidNotReadTest::theReasonIsGiven()
{
    const auto block = gamutfiles::readEdidBlock(QByteArray("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8).leftJustified(128));
    QVERIFY(!block);
    QCOMPARE(
        block.error(), QStringLiteral("is an EDID, which cannot be read here: the program was built without colord"));
}

QTEST_APPLESS_MAIN(EdidNotReadTest)

#include "edidnotreadtest.moc"
