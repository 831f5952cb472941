// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "samplefiles.h"

#include <gamutfiles/gamutfile.h>

#include <QtTest>

using namespace gamutfiles;
using Content = GamutFile::Content;

class GamutFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyFormatByContent();
    void suffixDoesNotMatter();
    void gamutWithoutANameIsNamedAfterTheFile();
    void errors_data();
    void errors();
    void hugeFiles();
    void missingFilesAndFolders();
    void errorIsOneLine();

private:
    QString write(const QString &name, const QByteArray &bytes);
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QByteArray minimal = R"json({"version": 1, "gamuts": [], "original": "Rec.2020", "target": "DCI-P3(D65)"})json";
const QByteArray list
    = "name,Y,x,y\nred,200,0.7,0.29\ngreen,700,0.2,0.7\nblue,100,0.15,0.05\nwhite,1000,0.28,0.29\ngrey,5,0.3,0.31\n";

//! What reading \a fileName fails with.
QString messageFor(const QString &fileName)
{
    return readGamutFile(fileName).problem().message(fileName);
}

} // namespace

void GamutFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QString GamutFileTest::write(const QString &name, const QByteArray &bytes)
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(name));
    }
    return file.fileName();
}

void GamutFileTest::everyFormatByContent()
{
    const auto json = readGamutFile(write("a", minimal));
    QVERIFY2(json, qPrintable(json.error()));
    QCOMPARE(json->content, Content::Description);
    QCOMPARE(json->description.target, QStringLiteral("DCI-P3(D65)"));
    const auto csv = readGamutFile(write("b", list));
    QVERIFY2(csv, qPrintable(csv.error()));
    QCOMPARE(csv->content, Content::Measurements);
    QCOMPARE(csv->measurements.measurements.size(), 5);
    const auto icc = readGamutFile(write("c", samplefiles::version4Profile()));
    QVERIFY2(icc, qPrintable(icc.error()));
    QCOMPARE(icc->content, Content::DeclaredGamut);
    QCOMPARE(icc->gamut.colorGamutName(), std::string("Studio 27 calibrated"));
    const auto edid = readGamutFile(write("d", samplefiles::edid()));
    QVERIFY2(edid, qPrintable(edid.error()));
    QCOMPARE(edid->content, Content::DeclaredGamut);
    QCOMPARE(edid->gamut.colorGamutName(), std::string("Studio 27"));
    QVERIFY(readGamutFile(write("e", "\xEF\xBB\xBF \n" + minimal)));
}

void GamutFileTest::suffixDoesNotMatter()
{
    QCOMPARE(readGamutFile(write("a.icc", minimal))->content, Content::Description);
    QCOMPARE(readGamutFile(write("b.json", samplefiles::edid()))->content, Content::DeclaredGamut);
    QCOMPARE(readGamutFile(write("c.csv", samplefiles::version2Profile()))->content, Content::DeclaredGamut);
}

void GamutFileTest::gamutWithoutANameIsNamedAfterTheFile()
{
    const auto file = readGamutFile(write("left.wall.icc", samplefiles::version2Profile([](cmsHPROFILE profile) {
        cmsWriteTag(profile, cmsSigProfileDescriptionTag, nullptr);
    })));
    QVERIFY(file);
    QCOMPARE(file->gamut.colorGamutName(), std::string("left.wall"));
}

void GamutFileTest::errors_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QByteArray &bytes, const char *reason) {
        QTest::newRow(name) << QString::fromLatin1(name).section(' ', 0, 0) << bytes << QString::fromUtf8(reason);
    };
    const QByteArray icc = samplefiles::version2Profile();
    const char *const unknown = ": is not a display description (JSON), measurement list (CSV), ICC profile or EDID";
    row("wall.ods", QByteArray("PK\x03\x04\x14\x00\x00\x08", 8),
        ": is a ZIP archive, as spreadsheets are: save the list as text, with the suffix csv");
    row("empty", "", ": is empty");
    row("empty.icc", "", ": is empty");
    row("picture", QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16), unknown);
    row("text", "Dear all\nhello", unknown);
    row("text, of commas", "Dear all, hello\nHow are you?\n", ": line 1: missing column name");
    row("binary,with,commas", QByteArray("a,b,c\0d", 7), unknown);
    row("wall.json of no JSON", "hello", ":1:2: illegal value");
    row("wall.json with an error", "{\"version\": 2}", ": gamuts: missing");
    row("list.csv of binary", "\x89PNG\r\n\x1A\n", ": is not UTF-8 text");
    row("list.csv of words", "hello", ": line 1: missing column name");
    row("short.icc", icc.left(20), ": is a truncated ICC profile: the header is incomplete");
    row("header.icm", icc.left(100), ": is a truncated ICC profile: 100 bytes instead of 0");
    row("long.icc", icc.left(200), nullptr);
    row("magic.icc", QByteArray(icc).replace("acsp", "xxxx"), ": is not an ICC profile");
    row("grey.icc", samplefiles::greyProfile(), ": has no primaries: it is a grey profile");
    row("short.edid", samplefiles::edid().left(7), ": is a truncated EDID: 7 bytes instead of at least 128");
    row("short.bin", samplefiles::edid().left(100), ": is a truncated EDID: 100 bytes instead of at least 128");
    row("magic.edid", QByteArray(128, 'x'), ": is not an EDID");
}

void GamutFileTest::errors()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const QString file = write(name, bytes);
    const auto opened = readGamutFile(file);
    QVERIFY(!opened);
    if (reason.isEmpty()) {
        reason = QStringLiteral(": is a truncated ICC profile: 200 bytes instead of %1")
                     .arg(samplefiles::version2Profile().size());
    }
    QCOMPARE(opened.problem().message(file), file + reason);
}

void GamutFileTest::hugeFiles()
{
    QFile file(write("huge.icc", samplefiles::version2Profile()));
    QVERIFY(file.resize(maximumFileBytes + 1)); // sparse
    QCOMPARE(messageFor(file.fileName()), file.fileName() + ": is larger than 32768 KiB");
    QVERIFY(file.resize(maximumFileBytes));
    QVERIFY(readGamutFile(file.fileName())); // what follows a profile is no matter

    const QString json = write("huge.json", QByteArray(16 * 1024 * 1024 + 1, '{'));
    QCOMPARE(messageFor(json), json + ": is too large for a display description (more than 16384 KiB)");
    const QString csv = write("huge.csv", QByteArray("a,1,0.3,0.3\n").repeated(8 * 1024 * 1024 / 12 + 1));
    QCOMPARE(messageFor(csv), csv + ": is too large for a measurement list (more than 8192 KiB)");
#ifdef Q_OS_UNIX
    QCOMPARE(messageFor("/dev/zero"), QStringLiteral("/dev/zero: is larger than 32768 KiB"));
#endif
}

void GamutFileTest::missingFilesAndFolders()
{
    QCOMPARE(messageFor(path("no.icc")), path("no.icc") + ": cannot be read: there is no such file");
    QCOMPARE(messageFor(m_folder->path()), m_folder->path() + ": is a folder");
}

void GamutFileTest::errorIsOneLine()
{
    const QString error = messageFor(path("odd\nname"));
    QVERIFY(error.contains("odd\\u000aname"));
    QVERIFY(!error.contains('\n'));
}

QTEST_GUILESS_MAIN(GamutFileTest)
#include "gamutfiletest.moc"
