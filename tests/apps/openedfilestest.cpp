// SPDX-License-Identifier: MIT
#include "gamutfiles/samplefiles.h"

#include "editing/openedfiles.h"

#include <QtTest>

using namespace gamutviewer;
using Content = GamutFile::Content;

class OpenedFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyFormatByContent();
    void suffixDoesNotMatter();
    void declaredGamutIsAdded();
    void declaredGamutIsReplaced();
    void takenNamesGetANumber();
    void gamutWithoutANameIsNamedAfterTheFile();
    void measurementsAreAdded();
    void measurementsWithoutAGamut();
    void openAloneMakesADescription();
    void measurementsAloneMakeADescription();
    void filesTogether();
    void secondDescriptionIsRefused();
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

DisplayDescription wall()
{
    DisplayDescription description;
    description.name = QStringLiteral("Wall");
    description.original = QStringLiteral("Rec.2020");
    description.target = QStringLiteral("Rec.709");
    description.measurePoints = {{QStringLiteral("old"), {0.3, 0.3}}};
    return description;
}

//! What reading \a fileName fails with.
QString messageFor(const QString &fileName)
{
    return readGamutFile(fileName).problem().message(fileName);
}

} // namespace

void OpenedFilesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QString OpenedFilesTest::write(const QString &name, const QByteArray &bytes)
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(name));
    }
    return file.fileName();
}

void OpenedFilesTest::everyFormatByContent()
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

void OpenedFilesTest::suffixDoesNotMatter()
{
    QCOMPARE(readGamutFile(write("a.icc", minimal))->content, Content::Description);
    QCOMPARE(readGamutFile(write("b.json", samplefiles::edid()))->content, Content::DeclaredGamut);
    QCOMPARE(readGamutFile(write("c.csv", samplefiles::version2Profile()))->content, Content::DeclaredGamut);
}

void OpenedFilesTest::declaredGamutIsAdded()
{
    const auto file = readGamutFile(write("monitor.bin", samplefiles::edid()));
    const DisplayDescription result = withFile(wall(), *file);
    QCOMPARE(result.declared, QStringLiteral("Studio 27"));
    QVERIFY(result.gamut(result.declared));
    QVERIFY(result.gamut(result.declared)->getTargets().red.x == 655 / 1024.0);
    QCOMPARE(result.name, QStringLiteral("Wall"));
    QCOMPARE(result.original, QStringLiteral("Rec.2020"));
    QCOMPARE(result.target, QStringLiteral("Rec.709"));
    QVERIFY(result.standards.isEmpty());
    QCOMPARE(result.measurePoints.size(), 1);
}

void OpenedFilesTest::declaredGamutIsReplaced()
{
    const DisplayDescription once = withFile(wall(), *readGamutFile(write("a.bin", samplefiles::edid())));
    const DisplayDescription twice = withFile(once, *readGamutFile(write("b.icc", samplefiles::version2Profile())));
    QCOMPARE(twice.declared, QStringLiteral("Studio 27 calibrated"));
    QVERIFY(twice.gamut(QStringLiteral("Studio 27"))); // it may play another part
}

void OpenedFilesTest::takenNamesGetANumber()
{
    const auto edid = readGamutFile(write("a.bin", samplefiles::edid()));
    const DisplayDescription once = withFile(wall(), *edid);
    const DisplayDescription again = withFile(once, *edid);
    QCOMPARE(again.declared, QStringLiteral("Studio 27"));
    QCOMPARE(again.gamuts.size(), std::size_t(1)); // it was there already
    GamutFile other = *edid;
    const auto named = [](const Model::Targets &targets) { return Model::ColorGamut("Studio 27", targets); };
    other.gamut = named(Model::rec2020().getTargets());
    const DisplayDescription twice = withFile(again, other);
    QCOMPARE(twice.declared, QStringLiteral("Studio 27 (2)"));
    QCOMPARE(withFile(twice, *edid).declared, QStringLiteral("Studio 27"));
    other.gamut = named(Model::dciP3D65().getTargets());
    QCOMPARE(withFile(twice, other).declared, QStringLiteral("Studio 27 (3)"));
    const auto published = readGamutFile(write("b.icc",
        samplefiles::version2Profile([](cmsHPROFILE profile) { samplefiles::describe(profile, L"Rec.709"); })));
    const DisplayDescription result = withFile(wall(), *published);
    QCOMPARE(result.declared, QStringLiteral("Rec.709 (2)"));
    QVERIFY(result.gamut(result.target)->getTargets().red.x == 0.64);
}

void OpenedFilesTest::gamutWithoutANameIsNamedAfterTheFile()
{
    const auto file = readGamutFile(write("left.wall.icc", samplefiles::version2Profile([](cmsHPROFILE profile) {
        cmsWriteTag(profile, cmsSigProfileDescriptionTag, nullptr);
    })));
    QVERIFY(file);
    QCOMPARE(file->gamut.colorGamutName(), std::string("left.wall"));
}

void OpenedFilesTest::measurementsAreAdded()
{
    const DisplayDescription result = withFile(wall(), *readGamutFile(write("meter.csv", list)));
    QCOMPARE(result.measured, QStringLiteral("meter"));
    QVERIFY(result.gamut(result.measured)->getTargets().white.Y == 1000.0);
    QCOMPARE(result.measurePoints.size(), 1);
    QCOMPARE(result.measurePoints[0].name, QStringLiteral("grey"));
    QVERIFY(result.measurePoints[0].xy.x() == 0.3);
    QCOMPARE(result.original, QStringLiteral("Rec.2020"));
}

void OpenedFilesTest::measurementsWithoutAGamut()
{
    const DisplayDescription result
        = withFile(wall(), *readGamutFile(write("meter.csv", "a,1,0.3,0.4\nb,1,0.4,0.3\n")));
    QVERIFY(result.measured.isEmpty());
    QVERIFY(result.gamuts.empty());
    QCOMPARE(result.measurePoints.size(), 2);
}

void OpenedFilesTest::openAloneMakesADescription()
{
    const auto opened = openFiles({write("a.bin", samplefiles::edid())});
    QVERIFY2(opened, qPrintable(opened.error()));
    QVERIFY(opened->descriptionFile.isEmpty());
    const DisplayDescription &description = opened->description;
    QCOMPARE(description.name, QStringLiteral("Studio 27"));
    QCOMPARE(description.original, QStringLiteral("Studio 27"));
    QCOMPARE(description.declared, QStringLiteral("Studio 27"));
    QCOMPARE(description.target, QStringLiteral("Rec.709"));
    QCOMPARE(description.standards, (QStringList{"Rec.709", "Rec.2020", "DCI-P3(D65)"}));
}

void OpenedFilesTest::measurementsAloneMakeADescription()
{
    const auto whole = openFiles({write("meter.csv", list)});
    QVERIFY(whole);
    QCOMPARE(whole->description.original, QStringLiteral("meter"));
    QCOMPARE(whole->description.measured, QStringLiteral("meter"));
    QCOMPARE(whole->description.name, QStringLiteral("meter"));
    const auto points = openFiles({write("points.csv", "a,1,0.3,0.4\n")});
    QVERIFY(points);
    QCOMPARE(points->description.original, QStringLiteral("Rec.709"));
    QCOMPARE(points->description.measurePoints.size(), 1);
}

void OpenedFilesTest::filesTogether()
{
    const QString json = write("wall.json", minimal);
    const auto opened = openFiles({write("a.bin", samplefiles::edid()), json, write("meter.csv", list)});
    QVERIFY2(opened, qPrintable(opened.error()));
    QCOMPARE(opened->descriptionFile, json);
    QCOMPARE(opened->description.original, QStringLiteral("Rec.2020"));
    QCOMPARE(opened->description.declared, QStringLiteral("Studio 27"));
    QCOMPARE(opened->description.measured, QStringLiteral("meter"));
    QCOMPARE(opened->description.target, QStringLiteral("DCI-P3(D65)"));
}

void OpenedFilesTest::secondDescriptionIsRefused()
{
    const QString first = write("a.json", minimal);
    const QString second = write("b.json", minimal);
    const auto opened = openFiles({first, second});
    QVERIFY(!opened);
    QCOMPARE(opened.error(), second + ": is a second display description; the first is " + first);
}

void OpenedFilesTest::errors_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QByteArray &bytes, const char *reason) {
        QTest::newRow(name) << QString::fromLatin1(name).section(' ', 0, 0) << bytes << QString::fromUtf8(reason);
    };
    const QByteArray icc = samplefiles::version2Profile();
    const char *const unknown = ": is not a display description (JSON), measurement list (CSV), ICC profile or EDID";
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

void OpenedFilesTest::errors()
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

void OpenedFilesTest::hugeFiles()
{
    QFile file(write("huge.icc", samplefiles::version2Profile()));
    QVERIFY(file.resize(maximumFileBytes + 1)); // sparse
    QCOMPARE(messageFor(file.fileName()), file.fileName() + ": is larger than 32768 KiB");
    QVERIFY(file.resize(maximumFileBytes));
    QVERIFY(readGamutFile(file.fileName())); // what follows a profile is no matter

    const QString json = write("huge.json", QByteArray(16 * 1024 * 1024 + 1, '{'));
    QCOMPARE(messageFor(json), json + ": is too large for a display description (more than 16384 KiB)");
    const QString csv = write("huge.csv", QByteArray("a,1,0.3,0.3\n").repeated(1024 * 1024 / 12 + 1));
    QCOMPARE(messageFor(csv), csv + ": is too large for a measurement list (more than 1024 KiB)");
#ifdef Q_OS_UNIX
    QCOMPARE(messageFor("/dev/zero"), QStringLiteral("/dev/zero: is larger than 32768 KiB"));
#endif
}

void OpenedFilesTest::missingFilesAndFolders()
{
    QCOMPARE(messageFor(path("no.icc")), path("no.icc") + ": cannot be read: there is no such file");
    QCOMPARE(messageFor(m_folder->path()), m_folder->path() + ": is a folder");
}

void OpenedFilesTest::errorIsOneLine()
{
    const QString error = messageFor(path("odd\nname"));
    QVERIFY(error.contains("odd\\u000aname"));
    QVERIFY(!error.contains('\n'));
}

QTEST_GUILESS_MAIN(OpenedFilesTest)
#include "openedfilestest.moc"
