// SPDX-License-Identifier: MIT
#include "gamutfiles.h"

#include "display/openfile.h"

#include <QtTest>

using namespace gamutviewer;
using Content = OpenedFile::Content;

class OpenFileTest : public QObject {
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

} // namespace

void OpenFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QString OpenFileTest::write(const QString &name, const QByteArray &bytes)
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(name));
    }
    return file.fileName();
}

void OpenFileTest::everyFormatByContent()
{
    const auto json = openFile(write("a", minimal));
    QVERIFY2(json, qPrintable(json.error()));
    QCOMPARE(json->content, Content::Description);
    QCOMPARE(json->description.target, QStringLiteral("DCI-P3(D65)"));
    const auto csv = openFile(write("b", list));
    QVERIFY2(csv, qPrintable(csv.error()));
    QCOMPARE(csv->content, Content::Measurements);
    QCOMPARE(csv->measurements.measurements.size(), 5);
    const auto icc = openFile(write("c", gamutfiles::version4Profile()));
    QVERIFY2(icc, qPrintable(icc.error()));
    QCOMPARE(icc->content, Content::DeclaredGamut);
    QCOMPARE(icc->gamut.colorGamutName(), std::string("Studio 27 calibrated"));
    const auto edid = openFile(write("d", gamutfiles::edid()));
    QVERIFY2(edid, qPrintable(edid.error()));
    QCOMPARE(edid->content, Content::DeclaredGamut);
    QCOMPARE(edid->gamut.colorGamutName(), std::string("Studio 27"));
    QVERIFY(openFile(write("e", "\xEF\xBB\xBF \n" + minimal)));
}

void OpenFileTest::suffixDoesNotMatter()
{
    QCOMPARE(openFile(write("a.icc", minimal))->content, Content::Description);
    QCOMPARE(openFile(write("b.json", gamutfiles::edid()))->content, Content::DeclaredGamut);
    QCOMPARE(openFile(write("c.csv", gamutfiles::version2Profile()))->content, Content::DeclaredGamut);
}

void OpenFileTest::declaredGamutIsAdded()
{
    const auto file = openFile(write("monitor.bin", gamutfiles::edid()));
    const DisplayDescription result = file->appliedTo(wall());
    QCOMPARE(result.declared, QStringLiteral("Studio 27"));
    QVERIFY(result.gamut(result.declared));
    QVERIFY(result.gamut(result.declared)->getTargets().red.x == 655 / 1024.0);
    QCOMPARE(result.name, QStringLiteral("Wall"));
    QCOMPARE(result.original, QStringLiteral("Rec.2020"));
    QCOMPARE(result.target, QStringLiteral("Rec.709"));
    QVERIFY(result.standards.isEmpty());
    QCOMPARE(result.measurePoints.size(), 1);
}

void OpenFileTest::declaredGamutIsReplaced()
{
    const DisplayDescription once = openFile(write("a.bin", gamutfiles::edid()))->appliedTo(wall());
    const DisplayDescription twice = openFile(write("b.icc", gamutfiles::version2Profile()))->appliedTo(once);
    QCOMPARE(twice.declared, QStringLiteral("Studio 27 calibrated"));
    QVERIFY(twice.gamut(QStringLiteral("Studio 27"))); // it may play another part
}

void OpenFileTest::takenNamesGetANumber()
{
    const auto edid = openFile(write("a.bin", gamutfiles::edid()));
    const DisplayDescription once = edid->appliedTo(wall());
    const DisplayDescription again = edid->appliedTo(once);
    QCOMPARE(again.declared, QStringLiteral("Studio 27"));
    QCOMPARE(again.gamuts.size(), std::size_t(1)); // it was there already
    OpenedFile other = *edid;
    const auto named = [](const Model::Targets &targets) { return Model::ColorGamut("Studio 27", targets); };
    other.gamut = named(Model::rec2020().getTargets());
    const DisplayDescription twice = other.appliedTo(again);
    QCOMPARE(twice.declared, QStringLiteral("Studio 27 (2)"));
    QCOMPARE(edid->appliedTo(twice).declared, QStringLiteral("Studio 27"));
    other.gamut = named(Model::dciP3D65().getTargets());
    QCOMPARE(other.appliedTo(twice).declared, QStringLiteral("Studio 27 (3)"));
    const auto published = openFile(write(
        "b.icc", gamutfiles::version2Profile([](cmsHPROFILE profile) { gamutfiles::describe(profile, L"Rec.709"); })));
    const DisplayDescription result = published->appliedTo(wall());
    QCOMPARE(result.declared, QStringLiteral("Rec.709 (2)"));
    QVERIFY(result.gamut(result.target)->getTargets().red.x == 0.64);
}

void OpenFileTest::gamutWithoutANameIsNamedAfterTheFile()
{
    const auto file = openFile(write("left.wall.icc", gamutfiles::version2Profile([](cmsHPROFILE profile) {
        cmsWriteTag(profile, cmsSigProfileDescriptionTag, nullptr);
    })));
    QVERIFY(file);
    QCOMPARE(file->gamut.colorGamutName(), std::string("left.wall"));
}

void OpenFileTest::measurementsAreAdded()
{
    const DisplayDescription result = openFile(write("meter.csv", list))->appliedTo(wall());
    QCOMPARE(result.measured, QStringLiteral("meter"));
    QVERIFY(result.gamut(result.measured)->getTargets().white.Y == 1000.0);
    QCOMPARE(result.measurePoints.size(), 1);
    QCOMPARE(result.measurePoints[0].name, QStringLiteral("grey"));
    QVERIFY(result.measurePoints[0].xy.x() == 0.3);
    QCOMPARE(result.original, QStringLiteral("Rec.2020"));
}

void OpenFileTest::measurementsWithoutAGamut()
{
    const DisplayDescription result = openFile(write("meter.csv", "a,1,0.3,0.4\nb,1,0.4,0.3\n"))->appliedTo(wall());
    QVERIFY(result.measured.isEmpty());
    QVERIFY(result.gamuts.empty());
    QCOMPARE(result.measurePoints.size(), 2);
}

void OpenFileTest::openAloneMakesADescription()
{
    const auto opened = openFiles({write("a.bin", gamutfiles::edid())});
    QVERIFY2(opened, qPrintable(opened.error()));
    QVERIFY(opened->descriptionFile.isEmpty());
    const DisplayDescription &description = opened->description;
    QCOMPARE(description.name, QStringLiteral("Studio 27"));
    QCOMPARE(description.original, QStringLiteral("Studio 27"));
    QCOMPARE(description.declared, QStringLiteral("Studio 27"));
    QCOMPARE(description.target, QStringLiteral("Rec.709"));
    QCOMPARE(description.standards, (QStringList{"Rec.709", "Rec.2020", "DCI-P3(D65)"}));
}

void OpenFileTest::measurementsAloneMakeADescription()
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

void OpenFileTest::filesTogether()
{
    const QString json = write("wall.json", minimal);
    const auto opened = openFiles({write("a.bin", gamutfiles::edid()), json, write("meter.csv", list)});
    QVERIFY2(opened, qPrintable(opened.error()));
    QCOMPARE(opened->descriptionFile, json);
    QCOMPARE(opened->description.original, QStringLiteral("Rec.2020"));
    QCOMPARE(opened->description.declared, QStringLiteral("Studio 27"));
    QCOMPARE(opened->description.measured, QStringLiteral("meter"));
    QCOMPARE(opened->description.target, QStringLiteral("DCI-P3(D65)"));
}

void OpenFileTest::secondDescriptionIsRefused()
{
    const QString first = write("a.json", minimal);
    const QString second = write("b.json", minimal);
    const auto opened = openFiles({first, second});
    QVERIFY(!opened);
    QCOMPARE(opened.error(), second + ": is a second display description; the first is " + first);
}

void OpenFileTest::errors_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QByteArray &bytes, const char *reason) {
        QTest::newRow(name) << QString::fromLatin1(name).section(' ', 0, 0) << bytes << QString::fromUtf8(reason);
    };
    const QByteArray icc = gamutfiles::version2Profile();
    const char *const unknown = ": is not a display description (JSON), measurement list (CSV), ICC profile or EDID";
    row("empty", "", ": is empty");
    row("empty.icc", "", ": is empty");
    row("picture", QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16), unknown);
    row("text", "Dear all\nhello", unknown);
    row("text, of commas", "Dear all, hello\nHow are you?\n", ": line 1: missing column name");
    row("binary,with,commas", QByteArray("a,b,c\0d", 7), unknown);
    row("wall.json of no JSON", "hello", ":1:2: illegal value");
    row("wall.json with an error", "{\"version\": 2}", ": gamuts: missing");
    row("list.csv of binary", "\x89PNG", ": is not UTF-8 text");
    row("list.csv of words", "hello", ": line 1: missing column name");
    row("short.icc", icc.left(20), ": is a truncated ICC profile: the header is incomplete");
    row("header.icm", icc.left(100), ": is a truncated ICC profile: 100 bytes instead of 0");
    row("long.icc", icc.left(200), nullptr);
    row("magic.icc", QByteArray(icc).replace("acsp", "xxxx"), ": is not an ICC profile");
    row("grey.icc", gamutfiles::greyProfile(), ": has no primaries: it is a grey profile");
    row("short.edid", gamutfiles::edid().left(7), ": is a truncated EDID: 7 bytes instead of at least 128");
    row("short.bin", gamutfiles::edid().left(100), ": is a truncated EDID: 100 bytes instead of at least 128");
    row("magic.edid", QByteArray(128, 'x'), ": is not an EDID");
}

void OpenFileTest::errors()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const QString file = write(name, bytes);
    const auto opened = openFile(file);
    QVERIFY(!opened);
    if (reason.isEmpty()) {
        reason = QStringLiteral(": is a truncated ICC profile: 200 bytes instead of %1")
                     .arg(gamutfiles::version2Profile().size());
    }
    QCOMPARE(opened.error(), file + reason);
}

void OpenFileTest::hugeFiles()
{
    QFile file(write("huge.icc", gamutfiles::version2Profile()));
    QVERIFY(file.resize(maximumFileBytes + 1)); // sparse
    QCOMPARE(openFile(file.fileName()).error(), file.fileName() + ": is larger than 32768 KiB");
    QVERIFY(file.resize(maximumFileBytes));
    QVERIFY(openFile(file.fileName())); // what follows a profile is no matter

    const QString json = write("huge.json", QByteArray(16 * 1024 * 1024 + 1, '{'));
    QCOMPARE(openFile(json).error(), json + ": is too large for a display description (more than 16384 KiB)");
    const QString csv = write("huge.csv", QByteArray("a,1,0.3,0.3\n").repeated(1024 * 1024 / 12 + 1));
    QCOMPARE(openFile(csv).error(), csv + ": is too large for a measurement list (more than 1024 KiB)");
#ifdef Q_OS_UNIX
    QCOMPARE(openFile("/dev/zero").error(), QStringLiteral("/dev/zero: is larger than 32768 KiB"));
#endif
}

void OpenFileTest::missingFilesAndFolders()
{
    QCOMPARE(openFile(path("no.icc")).error(), path("no.icc") + ": cannot be read: No such file or directory");
    QCOMPARE(openFile(m_folder->path()).error(), m_folder->path() + ": is a folder");
}

void OpenFileTest::errorIsOneLine()
{
    const QString error = openFile(path("odd\nname")).error();
    QVERIFY(error.contains("odd\\u000aname"));
    QVERIFY(!error.contains('\n'));
}

QTEST_GUILESS_MAIN(OpenFileTest)
#include "openfiletest.moc"
