// SPDX-FileCopyrightText: 2026 the ceiechart authors
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
    void declaredGamutIsAdded();
    void declaredGamutIsReplaced();
    void partIsChosen_data();
    void partIsChosen();
    void takenNamesGetANumber();
    void otherUnitIsAnotherGamut();
    void otherBlackIsAnotherGamut();
    void unitThatWasNotKnownIsTakenOver();
    void profileNamesNoDisplay();
    void listOfCabinetsNeedsAChoice();
    void measurementsAreAdded();
    void measurementsWithoutAGamut();
    void pointsStayWhenAListHasNoneForThem();
    void descriptionAddsItsGamuts();
    void declaredGamutAloneIsNothingElse();
    void measurementsAloneAreNothingElse();
    void filesTogether();
    void displaysAreNotMixedInSilence_data();
    void displaysAreNotMixedInSilence();
    void replacedPartsAreTold();
    void warningsOfReadersAreKept();
    void secondDescriptionIsRefused();
    void emptinessIsRecognised();

private:
    QString write(const QString &name, const QByteArray &bytes);
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QByteArray minimal = R"json({"version": 1, "gamuts": [], "original": "Rec.2020", "target": "DCI-P3(D65)"})json";
const QByteArray list
    = "name,Y "
      "(cd/m2),x,y\nred,200,0.7,0.29\ngreen,700,0.2,0.7\nblue,100,0.15,0.05\nwhite,1000,0.28,0.29\ngrey,5,0.3,0.31\n";

DisplayDescription wall()
{
    DisplayDescription description;
    description.name = QStringLiteral("Wall");
    description.original = QStringLiteral("Rec.2020");
    description.target = QStringLiteral("Rec.709");
    description.measurePoints = {{QStringLiteral("old"), {0.3, 0.3}}};
    return description;
}

//! Added as what it usually is.
DisplayDescription withUsual(const DisplayDescription &open, const GamutFile &file)
{
    return withFile(open, file, usualRole(file));
}

GamutFile declaredBy(const char *name, const Model::ColorGamut &gamut = Model::rec2020())
{
    GamutFile file;
    file.content = Content::DeclaredGamut;
    file.name = QStringLiteral("file");
    file.gamut = Model::ColorGamut(name, gamut.getTargets());
    file.displayName = QString::fromUtf8(name);
    return file;
}

QStringList texts(const QVector<Problem> &problems)
{
    QStringList found;
    for (const Problem &problem : problems) {
        found.append(problem.text);
    }
    return found;
}

QStringList lines(const OpenedFiles &opened)
{
    QStringList found;
    for (const FileWarning &warning : opened.warnings) {
        found.append(warning.message());
    }
    return found;
}

//! The names in every part but the standards.
QStringList parts(const DisplayDescription &d)
{
    return {d.original, d.measured, d.declared, d.target};
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

void OpenedFilesTest::declaredGamutIsAdded()
{
    const auto file = readGamutFile(write("monitor.bin", samplefiles::edid()));
    const DisplayDescription result = withUsual(wall(), *file);
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
    const DisplayDescription once = withUsual(wall(), *readGamutFile(write("a.bin", samplefiles::edid())));
    const DisplayDescription twice = withUsual(once, *readGamutFile(write("b.icc", samplefiles::version2Profile())));
    QCOMPARE(twice.declared, QStringLiteral("Studio 27 calibrated"));
    QVERIFY(twice.gamut(QStringLiteral("Studio 27"))); // it may play another part
}

void OpenedFilesTest::partIsChosen_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("standards");
    const QString name = QStringLiteral("Studio 27");
    QTest::newRow("original") << int(GamutRole::Original) << QStringList{name, "", "", "Rec.709"} << QStringList();
    QTest::newRow("measured") << int(GamutRole::Measured) << QStringList{"Rec.2020", name, "", "Rec.709"}
                              << QStringList();
    QTest::newRow("declared") << int(GamutRole::Declared) << QStringList{"Rec.2020", "", name, "Rec.709"}
                              << QStringList();
    QTest::newRow("target") << int(GamutRole::Target) << QStringList{"Rec.2020", "", "", name} << QStringList();
    QTest::newRow("standard") << int(GamutRole::Standard) << QStringList{"Rec.2020", "", "", "Rec.709"}
                              << QStringList(name);
    QTest::newRow("none") << -1 << QStringList{"Rec.2020", "", "", "Rec.709"} << QStringList();
}

void OpenedFilesTest::partIsChosen()
{
    QFETCH(int, role);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, standards);
    const auto file = readGamutFile(write("monitor.bin", samplefiles::edid()));
    const DisplayDescription result
        = withFile(wall(), *file, role < 0 ? std::nullopt : std::make_optional(GamutRole(role)));
    QCOMPARE(parts(result), expected);
    QCOMPARE(result.standards, standards);
    QVERIFY(hasOwnGamut(result, QStringLiteral("Studio 27")));
    QCOMPARE(result.measurePoints.size(), 1);
}

void OpenedFilesTest::takenNamesGetANumber()
{
    const auto edid = readGamutFile(write("a.bin", samplefiles::edid()));
    const DisplayDescription once = withUsual(wall(), *edid);
    const DisplayDescription again = withUsual(once, *edid);
    QCOMPARE(again.declared, QStringLiteral("Studio 27"));
    QCOMPARE(again.gamuts.size(), std::size_t(1)); // it was there already
    GamutFile other = *edid;
    const auto named = [](const Model::Targets &targets) { return Model::ColorGamut("Studio 27", targets); };
    other.gamut = named(Model::rec2020().getTargets());
    const DisplayDescription twice = withUsual(again, other);
    QCOMPARE(twice.declared, QStringLiteral("Studio 27 (2)"));
    QCOMPARE(withUsual(twice, *edid).declared, QStringLiteral("Studio 27"));
    other.gamut = named(Model::dciP3D65().getTargets());
    QCOMPARE(withUsual(twice, other).declared, QStringLiteral("Studio 27 (3)"));
    const auto published = readGamutFile(write(
        "b.icc", samplefiles::version2Profile([](cmsHPROFILE handle) { samplefiles::describe(handle, L"Rec.709"); })));
    const DisplayDescription result = withUsual(wall(), *published);
    QCOMPARE(result.declared, QStringLiteral("Rec.709 (2)"));
    QVERIFY(result.gamut(result.target)->getTargets().red.x == 0.64);
}

void OpenedFilesTest::otherUnitIsAnotherGamut()
{
    GamutFile relative = declaredBy("Studio 27");
    relative.gamut.unit = LuminanceUnit::Relative;
    GamutFile absolute = relative;
    absolute.gamut.unit = LuminanceUnit::CandelaPerSquareMetre;
    const DisplayDescription once = withUsual(wall(), relative);
    QVERIFY(texts(remarksOnAdding(once, {QString(), absolute, {}, GamutRole::Standard}))
                .contains("is called \"Studio 27 (2)\" here, since another gamut has its name"));
    const DisplayDescription both = withUsual(once, absolute);
    QCOMPARE(both.declared, QStringLiteral("Studio 27 (2)"));
    QVERIFY(both.gamut(QStringLiteral("Studio 27"))->unit == LuminanceUnit::Relative);
    QVERIFY(both.gamut(both.declared)->unit == LuminanceUnit::CandelaPerSquareMetre);
    // Each is there by now.
    QCOMPARE(withUsual(both, relative).declared, QStringLiteral("Studio 27"));
    QCOMPARE(withUsual(both, absolute).declared, QStringLiteral("Studio 27 (2)"));
    QCOMPARE(withUsual(both, absolute).gamuts.size(), std::size_t(2));
}

void OpenedFilesTest::otherBlackIsAnotherGamut()
{
    const GamutFile without = declaredBy("Studio 27");
    GamutFile with = without;
    with.gamut.black = Model::Target::fromYxy(0.5, 0.3, 0.31);
    const DisplayDescription both = withUsual(withUsual(wall(), without), with);
    QCOMPARE(both.declared, QStringLiteral("Studio 27 (2)"));
    QVERIFY(!both.gamut(QStringLiteral("Studio 27"))->black);
    QVERIFY(sameBlacks(both.gamut(both.declared)->black, with.gamut.black));
    QCOMPARE(withUsual(both, with).gamuts.size(), both.gamuts.size()); // it is there by now
}

void OpenedFilesTest::unitThatWasNotKnownIsTakenOver()
{
    GamutFile unknown = declaredBy("Studio 27");
    unknown.gamut.unit = LuminanceUnit::NotKnown;
    GamutFile known = unknown;
    known.gamut.unit = LuminanceUnit::CandelaPerSquareMetre;
    const DisplayDescription before = withUsual(wall(), unknown);
    const QString remark = QStringLiteral("tells the unit of \"Studio 27\", which was not known: cd/m²");
    const auto remarks = [](const DisplayDescription &open, const GamutFile &file) {
        return texts(remarksOnAdding(open, {QString(), file, {}, GamutRole::Standard}));
    };
    QVERIFY(remarks(before, known).contains(remark));
    const DisplayDescription after = withUsual(before, known);
    QCOMPARE(after.gamuts.size(), std::size_t(1));
    QVERIFY(after.gamuts[0].unit == LuminanceUnit::CandelaPerSquareMetre);
    // It is not forgotten again, and told once.
    const DisplayDescription again = withUsual(after, unknown);
    QCOMPARE(again.gamuts.size(), std::size_t(1));
    QVERIFY(again.gamuts[0].unit == LuminanceUnit::CandelaPerSquareMetre);
    QVERIFY(!remarks(after, unknown).contains(remark));
    QVERIFY(!remarks(after, known).contains(remark));
    // A description's gamuts tell it, too.
    GamutFile other;
    other.description.gamuts.push_back(known.gamut);
    QVERIFY(remarks(before, other).contains(remark));
    QVERIFY(withFile(before, other, {}).gamuts[0].unit == LuminanceUnit::CandelaPerSquareMetre);
}

void OpenedFilesTest::profileNamesNoDisplay()
{
    const QString profile = write("b.icc", samplefiles::version2Profile([](cmsHPROFILE handle) {
        samplefiles::describe(handle, L"Compatible with something");
    }));
    const auto alone = openFiles({profile});
    QVERIFY2(alone, qPrintable(alone.error()));
    QVERIFY(alone->description.name.isEmpty());
    QCOMPARE(alone->description.declared, QStringLiteral("Compatible with something"));
    const QString edid = write("a.bin", samplefiles::plainEdid());
    for (const QStringList &files : {QStringList{edid, profile}, QStringList{profile, edid}}) {
        const auto opened = openFiles(files);
        QVERIFY2(opened, qPrintable(opened.error()));
        QCOMPARE(opened->description.name, QStringLiteral("Studio 27"));
        QVERIFY2(!lines(*opened).join(QString()).contains("is of the display"), qPrintable(lines(*opened).join(' ')));
    }
    // Its metadata may name one.
    const QString ofDesk = write("c.icc", samplefiles::version4Profile([](cmsHPROFILE handle) {
        const cmsHANDLE dictionary = cmsDictAlloc(nullptr);
        cmsDictAddEntry(dictionary, L"EDID_model", L"Desk 24", nullptr, nullptr);
        cmsWriteTag(handle, cmsSigMetaTag, dictionary);
        cmsDictFree(dictionary);
    }));
    QCOMPARE(openFiles({ofDesk})->description.name, QStringLiteral("Desk 24"));
    QVERIFY(
        lines(*openFiles({edid, ofDesk})).contains(ofDesk + ": is of the display \"Desk 24\", not of \"Studio 27\""));
}

void OpenedFilesTest::listOfCabinetsNeedsAChoice()
{
    const QByteArray whole = "cabinet,name,Lv,x,y\nA1,R,200,0.7,0.29\nA1,G,700,0.2,0.7\nA1,B,100,0.15,0.05\n"
                             "A1,W,1000,0.28,0.29\nA2,W,990,0.28,0.29\n";
    const QString file = write("wall.csv", whole);
    const auto opened = openFiles({file});
    QVERIFY2(opened, qPrintable(opened.error()));
    QVERIFY(opened->needsChoice);
    QCOMPARE(lines(*opened),
        QStringList(file + ": 2 cabinets (A1, A2): there is no measured gamut of all of them; choose a cabinet"));
    MeasurementOptions options;
    options.cabinet = QStringLiteral("A1");
    const auto chosen = openFiles({file}, options);
    QVERIFY2(chosen, qPrintable(chosen.error()));
    QVERIFY(!chosen->needsChoice);
    QCOMPARE(chosen->description.measured, QStringLiteral("wall"));
    // White alone is measured for uniformity.
    const auto whites = openFiles({write("whites.csv", "cabinet,name,Lv,x,y\nA1,W,990,0.3,0.3\nA2,W,980,0.3,0.3\n")});
    QVERIFY2(whites, qPrintable(whites.error()));
    QVERIFY(!whites->needsChoice);
    QVERIFY(whites->warnings.isEmpty());
}

void OpenedFilesTest::measurementsAreAdded()
{
    const DisplayDescription result = withUsual(wall(), *readGamutFile(write("meter.csv", list)));
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
        = withUsual(wall(), *readGamutFile(write("meter.csv", "a,1,0.3,0.4\nb,1,0.4,0.3\n")));
    QVERIFY(result.measured.isEmpty());
    QVERIFY(result.gamuts.empty());
    QCOMPARE(result.measurePoints.size(), 2);
}

void OpenedFilesTest::pointsStayWhenAListHasNoneForThem()
{
    const auto file = readGamutFile(write("four.csv", QByteArray(list).replace("grey,5,0.3,0.31\n", "")));
    QVERIFY2(file, qPrintable(file.error()));
    QCOMPARE(withFile(wall(), *file, GamutRole::Standard).measurePoints.size(), 1);
    // Those of another measurement go with it.
    QVERIFY(withFile(wall(), *file, GamutRole::Measured).measurePoints.isEmpty());
}

void OpenedFilesTest::descriptionAddsItsGamuts()
{
    GamutFile other;
    other.description = wall();
    other.description.name = QStringLiteral("Other");
    other.description.gamuts.emplace_back(Model::ColorGamut("Native", Model::dciP3D65().getTargets()));
    other.description.original = QStringLiteral("Native");
    const DisplayDescription result = withUsual(wall(), other);
    QCOMPARE(parts(result), parts(wall()));
    QCOMPARE(result.name, QStringLiteral("Wall"));
    QVERIFY(hasOwnGamut(result, QStringLiteral("Native")));
    QCOMPARE(texts(remarksOnAdding(wall(), {QString(), other, {}, {}})),
        (QStringList{"is of the display \"Other\", not of \"Wall\"", "adds its gamuts only, in no role"}));
    // A wall takes the place of another one, of which all cabinets are counted.
    DisplayDescription open = wall();
    open.wall.cabinets.resize(1);
    ReadFile list;
    list.wall = open.wall;
    QCOMPARE(texts(remarksOnAdding(open, list)),
        (QStringList{"takes the place of the wall that there was, of one cabinet"}));
    open.wall.incomplete.resize(2);
    QCOMPARE(
        texts(remarksOnAdding(open, list)), (QStringList{"takes the place of the wall that there was, of 3 cabinets"}));
    // Instead of nothing, it is all of it.
    QCOMPARE(withUsual(DisplayDescription(), other).original, QStringLiteral("Native"));
}

void OpenedFilesTest::declaredGamutAloneIsNothingElse()
{
    const auto opened = openFiles({write("a.bin", samplefiles::plainEdid())});
    QVERIFY2(opened, qPrintable(opened.error()));
    QVERIFY(opened->descriptionFile.isEmpty());
    const DisplayDescription &description = opened->description;
    QCOMPARE(description.name, QStringLiteral("Studio 27"));
    QCOMPARE(parts(description), (QStringList{"", "", "Studio 27", ""}));
    QVERIFY(description.standards.isEmpty());
    QCOMPARE(description.gamuts.size(), std::size_t(1));
    QVERIFY(opened->warnings.isEmpty());
}

void OpenedFilesTest::measurementsAloneAreNothingElse()
{
    const auto whole = openFiles({write("meter.csv", list)});
    QVERIFY(whole);
    QCOMPARE(parts(whole->description), (QStringList{"", "meter", "", ""}));
    QVERIFY(whole->description.standards.isEmpty());
    QVERIFY(whole->description.name.isEmpty()); // a list does not say what was measured
    const auto points = openFiles({write("points.csv", "a,1,0.3,0.4\n")});
    QVERIFY(points);
    QCOMPARE(parts(points->description), (QStringList{"", "", "", ""}));
    QVERIFY(points->description.gamuts.empty());
    QCOMPARE(points->description.measurePoints.size(), 1);
}

void OpenedFilesTest::filesTogether()
{
    const QString json = write("wall.json", minimal);
    const QStringList names{write("a.bin", samplefiles::plainEdid()), json, write("meter.csv", list)};
    const auto opened = openFiles(names);
    QVERIFY2(opened, qPrintable(opened.error()));
    QCOMPARE(opened->descriptionFile, json);
    QCOMPARE(parts(opened->description), (QStringList{"Rec.2020", "meter", "Studio 27", "DCI-P3(D65)"}));
    QCOMPARE(parts(opened->inDescriptionFile), (QStringList{"Rec.2020", "", "", "DCI-P3(D65)"}));
    QCOMPARE(opened->fileNames, (QStringList{json, names.first(), names.last()}));
    QVERIFY(opened->warnings.isEmpty());
}

void OpenedFilesTest::displaysAreNotMixedInSilence_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("added");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("another") << "Studio 27"
                             << "Desk 24" << true;
    QTest::newRow("the same") << "Studio 27"
                              << "Studio 27" << false;
    QTest::newRow("the same in small letters") << "Studio 27"
                                               << "STUDIO  27 " << false;
    QTest::newRow("the same and more") << "Studio 27"
                                       << "Studio 27, calibrated" << false;
    QTest::newRow("a longer number") << "Studio 2"
                                     << "Studio 27" << true;
    QTest::newRow("known only now") << ""
                                    << "Studio 27" << false;
    QTest::newRow("not said") << "Studio 27"
                              << "" << false;
}

void OpenedFilesTest::displaysAreNotMixedInSilence()
{
    QFETCH(QString, open);
    QFETCH(QString, added);
    QFETCH(bool, isTold);
    DisplayDescription description;
    description.name = open;
    const ReadFile file{QStringLiteral("b.bin"), declaredBy(qPrintable(added)), {}, GamutRole::Declared};
    const QString remark = QStringLiteral("is of the display \"%1\", not of \"%2\"").arg(added, open);
    QCOMPARE(texts(remarksOnAdding(description, file)), isTold ? QStringList(remark) : QStringList());
    // By its declared gamut, the display is known too.
    description.declared = added;
    QVERIFY(!texts(remarksOnAdding(description, file)).contains(remark));
}

void OpenedFilesTest::replacedPartsAreTold()
{
    const QString first = write("a.bin", samplefiles::plainEdid());
    const QString second
        = write("b.bin", samplefiles::withChecksum(samplefiles::plainEdid().replace("Studio 27", "Desk 24\n ")));
    const QString meter = write("meter.csv", list);
    const auto opened = openFiles({first, second, meter, meter});
    QVERIFY2(opened, qPrintable(opened.error()));
    QCOMPARE(parts(opened->description), (QStringList{"", "meter", "Desk 24", ""}));
    QCOMPARE(lines(*opened),
        (QStringList{second + ": is of the display \"Desk 24\", not of \"Studio 27\"",
            second + ": takes the place of \"Studio 27\" as the declared gamut",
            meter + ": takes the place of all measured points there were: 1"}));
    QCOMPARE(texts(remarksOnAdding(opened->description, {QString(), declaredBy("Studio 27"), {}, std::nullopt})),
        QStringList("is called \"Studio 27 (2)\" here, since another gamut has its name"));
}

void OpenedFilesTest::warningsOfReadersAreKept()
{
    ReadFile file{QStringLiteral("b.bin"), declaredBy("Wall"), {{"is odd", "white", 0, 0}}, GamutRole::Declared};
    const QStringList expected("b.bin: white: is odd");
    QCOMPARE(lines(openedAlone({file})), expected);
    QCOMPARE(lines(openedWith(wall(), {file})), expected);
    file.warnings.clear();
    QVERIFY(openedAlone({file}).warnings.isEmpty());
    QVERIFY(openedAlone({file}).notes.facts.isEmpty());
    file.file.facts = {{QStringLiteral("made by"), QStringLiteral("XYZ")}};
    for (const OpenedFiles &opened : {openedAlone({file}), openedWith(wall(), {file})}) {
        QCOMPARE(opened.notes.facts.size(), 1);
        QCOMPARE(opened.notes.facts.first().fileName, file.fileName);
        QCOMPARE(opened.notes.facts.first().fact.value, QStringLiteral("XYZ"));
    }
}

void OpenedFilesTest::secondDescriptionIsRefused()
{
    const QString first = write("a.json", minimal);
    const QString second = write("b.json", minimal);
    const auto opened = openFiles({first, second});
    QVERIFY(!opened);
    QCOMPARE(opened.error(), second + ": is a second display description; the first is " + first);
}

void OpenedFilesTest::emptinessIsRecognised()
{
    QVERIFY(isEmpty(DisplayDescription()));
    const auto isEmptyWith = [](const std::function<void(DisplayDescription &)> &change) {
        DisplayDescription description;
        change(description);
        return isEmpty(description);
    };
    QVERIFY(!isEmptyWith([](DisplayDescription &d) { d.name = QStringLiteral("a"); }));
    QVERIFY(!isEmptyWith([](DisplayDescription &d) { d.notes = QStringLiteral("a"); }));
    QVERIFY(!isEmptyWith([](DisplayDescription &d) { d.gamuts.emplace_back(Model::rec709()); }));
    QVERIFY(!isEmptyWith([](DisplayDescription &d) { d.target = QStringLiteral("Rec.709"); }));
    QVERIFY(!isEmptyWith([](DisplayDescription &d) { d.standards.append(QStringLiteral("Rec.709")); }));
    QVERIFY(!isEmptyWith([](DisplayDescription &d) { d.cmyPoints.append(NamedPoint()); }));
}

QTEST_GUILESS_MAIN(OpenedFilesTest)
#include "openedfilestest.moc"
