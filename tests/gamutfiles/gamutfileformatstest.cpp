// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "samplefiles.h"

#include <gamutfiles/gamutfile.h>

#include <QtTest>

using namespace gamutfiles;

/*! \brief Declared gamuts, in the forms and under the names that files have them. */
class GamutFileFormatsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void edids_data();
    void edids();
    void severalEdidsInAText();
    void damagedEdidInAText();
    void patternsMatch_data();
    void patternsMatch();
    void listsThatBeginWithABracket();
    void listsAlignedBySpaces();
    void factsOfAnEdid();
    void emptyGammaIsSaidToBe();
    void factsOfAProfile();

private:
    QString write(const QString &name, const QByteArray &bytes) const;

    QTemporaryDir m_folder;
};

void GamutFileFormatsTest::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

QString GamutFileFormatsTest::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(name));
    }
    return file.fileName();
}

namespace {

QByteArray hdrEdid()
{
    return samplefiles::withExtensions(samplefiles::edid(),
        {samplefiles::ctaBlock(samplefiles::ctaDataBlock(5, QByteArray("\x80\x00", 2))
            + samplefiles::ctaDataBlock(6, QByteArray("\x05\x01\x8A\x6A\x02", 5)))});
}

} // namespace

void GamutFileFormatsTest::edids_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray binary = samplefiles::edid();
    for (const char *name : {"edid", "display.edid", "display.bin", "display.dat", "display.json", "display"}) {
        QTest::newRow(name) << QString(name) << binary;
    }
    QTest::newRow("digits") << "display.txt" << binary.toHex(' ');
    QTest::newRow("digits named edid") << "display.edid" << binary.toHex();
    QTest::newRow("digits with commas") << "display.csv"
                                        << "0x" + binary.toHex(',').replace(",", ", 0x");
}

void GamutFileFormatsTest::edids()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    const auto file = readGamutFile(write(name, bytes));
    QVERIFY2(file, qPrintable(file.error()));
    QVERIFY(file->content == GamutFile::Content::DeclaredGamut);
    QCOMPARE(file->gamut.colorGamutName(), std::string("Studio 27"));
    QVERIFY(file->gamut.getTargets().red.x == 655 / 1024.0);
    QCOMPARE(file.warnings().size(), 1);
}

void GamutFileFormatsTest::severalEdidsInAText()
{
    const QByteArray digits = samplefiles::edid().toHex();
    const auto file = readGamutFile(write("outputs.txt", "one:\n" + digits + "\nother:\n" + digits + '\n'));
    QVERIFY2(file, qPrintable(file.error()));
    QCOMPARE(file.warnings().first().message(), QStringLiteral("holds 2 EDIDs, of which only the first is read"));
}

void GamutFileFormatsTest::damagedEdidInAText()
{
    QByteArray damaged = samplefiles::edid();
    damaged[30] = '\0';
    const auto file = readGamutFile(write("display.txt", damaged.toHex()));
    QVERIFY(!file);
    QCOMPARE(file.error(), QStringLiteral("is a damaged EDID: its checksum is wrong"));
    // The kernel gives an empty one for an output without a display.
    QCOMPARE(readGamutFile(write("edid", "")).error(), QStringLiteral("is empty"));
    QCOMPARE(readGamutFile(write("edid", "nothing of the kind")).error(),
        QStringLiteral("is a truncated EDID: 19 bytes instead of at least 128"));
}

void GamutFileFormatsTest::listsThatBeginWithABracket()
{
    for (const char *begin : {"[Measurements]\n", "{wall 3}\n", "[1] first run\n"}) {
        for (const char *name : {"list.csv", "list.txt", "list.tsv"}) {
            const auto file = readGamutFile(write(name, begin + QByteArray("name,Lv,x,y\nwhite,100,0.3,0.3\n")));
            QVERIFY2(file, qPrintable(file.error()));
            QVERIFY(file->content == GamutFile::Content::Measurements);
        }
    }
    const auto description = readGamutFile(write("wall.txt", "{ \"version\": 1, \"gamuts\": [] }"));
    QVERIFY2(description, qPrintable(description.error()));
    QVERIFY(description->content == GamutFile::Content::Description);
}

void GamutFileFormatsTest::listsAlignedBySpaces()
{
    const auto aligned = readGamutFile(write("list.txt", "name  Y     x    y\nred   200.5 0.7  0.29\n"));
    QVERIFY2(aligned, qPrintable(aligned.error()));
    QCOMPARE(aligned->content, GamutFile::Content::Measurements);
    QVERIFY(!readGamutFile(write("list.txt", "three words here and 4 5\n")));
}

void GamutFileFormatsTest::patternsMatch_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"edid", "monitor.edid", "monitor.bin", "monitor.dat", "monitor.txt", "display.icc",
             "display.icm", "list.csv", "wall.json"}) {
        QTest::newRow(name) << QString(name);
    }
}

void GamutFileFormatsTest::patternsMatch()
{
    QFETCH(QString, name);
    QVERIFY(QDir::match(gamutFilePatterns(), name));
    QVERIFY(!QDir::match(gamutFilePatterns(), name + "x"));
}

namespace {

QStringList lines(const QVector<DisplayFact> &facts)
{
    QStringList texts;
    for (const DisplayFact &fact : facts) {
        texts += fact.name + ": " + fact.value;
    }
    return texts;
}

} // namespace

void GamutFileFormatsTest::factsOfAnEdid()
{
    const auto file = readGamutFile(write("hdr.edid", hdrEdid()));
    QVERIFY2(file, qPrintable(file.error()));
    QCOMPARE(lines(file->facts),
        QStringList({"manufacturer: ABC", "gamma: 2.2",
            QString::fromUtf8("desired maximum luminance of content: 993.5 cd/m²"),
            QString::fromUtf8("desired maximum average of a frame: 496.7 cd/m²"),
            QString::fromUtf8("desired minimum luminance of content: 0.0006111 cd/m²"), "takes signals of: BT2020RGB",
            "takes transfer functions: traditional gamma, SDR luminance, SMPTE ST 2084"}));
}

void GamutFileFormatsTest::emptyGammaIsSaidToBe()
{
    const auto facts = [&](char code) {
        const QByteArray edid = samplefiles::edid().replace(23, 1, QByteArray(1, code));
        return lines(readGamutFile(write("gamma.edid", samplefiles::withChecksum(edid)))->facts);
    };
    QCOMPARE(facts('\0').last(), QStringLiteral("gamma: 1, as a field that was left empty also says"));
    QCOMPARE(facts('\1').last(), QStringLiteral("gamma: 1.01"));
    QCOMPARE(facts('\xFF'), QStringList{"manufacturer: ABC"});
}

void GamutFileFormatsTest::factsOfAProfile()
{
    const auto file = readGamutFile(write("display.icc", samplefiles::version4Profile([](cmsHPROFILE profile) {
        const cmsCIEXYZ luminance{0.0, 250.0, 0.0};
        cmsWriteTag(profile, cmsSigLuminanceTag, &luminance);
        const cmsHANDLE dictionary = cmsDictAlloc(nullptr);
        cmsDictAddEntry(dictionary, L"MEASUREMENT_device", L"meter", nullptr, nullptr);
        cmsWriteTag(profile, cmsSigMetaTag, dictionary);
        cmsDictFree(dictionary);
    })));
    QVERIFY2(file, qPrintable(file.error()));
    QCOMPARE(lines(file->facts),
        QStringList({QString::fromUtf8("luminance of white: 250 cd/m²"), "MEASUREMENT_device: meter"}));
}

QTEST_GUILESS_MAIN(GamutFileFormatsTest)
#include "gamutfileformatstest.moc"
