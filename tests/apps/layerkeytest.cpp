// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramfixture.h"

#include "drawing/layerswitches.h"
#include "panel/layerkey.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QScopeGuard>
#include <QtTest>

using namespace gamutviewer;
using namespace diagramfixture;

class LayerKeyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keySwitchesLayers_data();
    void keySwitchesLayers();
    void doubleClickShowsAlone();
    void anotherEntryIsShownAlone();
    void showingAloneKeepsOtherSwitches();
    void aloneEndsWithTheDescription();
    void returnShowsAlone();
    void standardsAreThoseOfTheDescription();
    void changedKeyEqualsANewOne();
    void standardsStayWhenTheTargetIsEdited();
    void keySpeaks();
    void fontsInPixelsAreScaled();
};

namespace {

QPoint middleOf(const LayerKey *key, const QListWidgetItem *entry)
{
    return key->visualItemRect(entry).center();
}

void doubleClick(const WindowFixture &f, const QString &name)
{
    QListWidgetItem *entry = key(f)->entry(name);
    key(f)->scrollToItem(entry);
    const QPoint place = middleOf(key(f), entry);
    QTest::mouseClick(key(f)->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(key(f)->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

QStringList shownGamuts(const WindowFixture &f)
{
    QStringList names;
    for (const ceiechart::DiagramGamut &gamut : view(f)->gamuts()) {
        if (view(f)->content().shows(gamut)) {
            names.append(QString::fromStdString(gamut.gamut.colorGamutName()));
        }
    }
    return names;
}

//! Whether two pictures are the same but for the rounding of glyphs, which a first painting differs by.
bool looksLike(const QImage &one, const QImage &other)
{
    constexpr int rounding = 4;
    if (one.size() != other.size()) {
        return false;
    }
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            if (qAbs(qRed(a) - qRed(b)) > rounding || qAbs(qGreen(a) - qGreen(b)) > rounding
                || qAbs(qBlue(a) - qBlue(b)) > rounding) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

void LayerKeyTest::keySwitchesLayers_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"DCI-P3(D65)", "LED wall", "LED wall, warm", "Rec.709", "Common area", "Given up",
             "Planckian locus", "Isotherms", "Wavelengths", "CMY points", "Axes", "Grid"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void LayerKeyTest::keySwitchesLayers()
{
    QFETCH(QString, name);
    WindowFixture f;
    QListWidgetItem *entry = key(f)->entry(name);
    QVERIFY(entry);
    QCOMPARE(entry->checkState(), Qt::Checked);
    key(f)->setFocus();
    const QImage with = view(f)->grab().toImage();
    key(f)->scrollToItem(entry);
    QTest::mouseClick(key(f)->viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(key(f), entry));
    QCOMPARE(key(f)->entry(name)->checkState(), Qt::Unchecked);
    const QImage without = view(f)->grab().toImage();
    QVERIFY(!looksLike(without, with));
    key(f)->setFocus();
    key(f)->setCurrentItem(entry);
    QTest::keyClick(key(f), Qt::Key_Space);
    QCOMPARE(key(f)->entry(name)->checkState(), Qt::Checked);
    QVERIFY(looksLike(view(f)->grab().toImage(), with));
}

void LayerKeyTest::doubleClickShowsAlone()
{
    WindowFixture f;
    const QStringList all = shownGamuts(f);
    QVERIFY(all.size() > 3);
    doubleClick(f, QStringLiteral("LED wall"));
    QCOMPARE(shownGamuts(f), QStringList(QStringLiteral("LED wall")));
    // Layers are another matter.
    QVERIFY(view(f)->isLayerShown(DiagramLayer::Grid));
    doubleClick(f, QStringLiteral("LED wall"));
    QCOMPARE(shownGamuts(f), all);
    doubleClick(f, QStringLiteral("Rec.709"));
    QCOMPARE(shownGamuts(f), QStringList(QStringLiteral("Rec.709")));
}

void LayerKeyTest::anotherEntryIsShownAlone()
{
    WindowFixture f;
    const QStringList all = shownGamuts(f);
    doubleClick(f, QStringLiteral("LED wall"));
    doubleClick(f, QStringLiteral("Rec.709"));
    QCOMPARE(shownGamuts(f), QStringList(QStringLiteral("Rec.709")));
    doubleClick(f, QStringLiteral("DCI-P3(D65)"));
    QCOMPARE(shownGamuts(f), QStringList(QStringLiteral("DCI-P3(D65)")));
    // What was shown before any of them was alone.
    doubleClick(f, QStringLiteral("DCI-P3(D65)"));
    QCOMPARE(shownGamuts(f), all);
}

void LayerKeyTest::showingAloneKeepsOtherSwitches()
{
    WindowFixture f;
    const QStringList all = shownGamuts(f);
    doubleClick(f, QStringLiteral("LED wall"));
    QTest::mouseClick(key(f)->colors()->button(int(ceiechart::HorseshoeColors::None)), Qt::LeftButton);
    key(f)->setFocus();
    key(f)->setCurrentItem(key(f)->entry(QStringLiteral("Grid")));
    QTest::keyClick(key(f), Qt::Key_Space);
    doubleClick(f, QStringLiteral("LED wall"));
    QCOMPARE(shownGamuts(f), all);
    QCOMPARE(view(f)->horseshoeColors(), ceiechart::HorseshoeColors::None);
    QVERIFY(!view(f)->isLayerShown(DiagramLayer::Grid));
}

void LayerKeyTest::aloneEndsWithTheDescription()
{
    WindowFixture f;
    doubleClick(f, QStringLiteral("LED wall"));
    f.window->setDescription(f.document().description(), QString());
    f.window->diagramPage()->switches()->setShown(DiagramLayer::Targets, true);
    doubleClick(f, QStringLiteral("LED wall"));
    QCOMPARE(shownGamuts(f), QStringList(QStringLiteral("LED wall")));
}

void LayerKeyTest::returnShowsAlone()
{
    WindowFixture f;
    key(f)->setFocus();
    key(f)->setCurrentItem(key(f)->entry(QStringLiteral("Grid")));
    QTest::keyClick(key(f), Qt::Key_Return);
    QVERIFY(view(f)->isLayerShown(DiagramLayer::Grid));
    QVERIFY(!view(f)->isLayerShown(DiagramLayer::Isotherms));
    QVERIFY(view(f)->isLayerShown(DiagramLayer::Targets));
    QTest::keyClick(key(f), Qt::Key_Return);
    QVERIFY(view(f)->isLayerShown(DiagramLayer::Isotherms));
}

void LayerKeyTest::standardsAreThoseOfTheDescription()
{
    WindowFixture f;
    DisplayDescription description = f.document().description();
    description.standards = QStringList{QStringLiteral("Rec.2020")};
    f.window->setDescription(description, QString());
    QCOMPARE(key(f)->entry(QStringLiteral("Rec.2020"))->checkState(), Qt::Checked);
    QCOMPARE(key(f)->entry(QStringLiteral("Rec.709"))->checkState(), Qt::Unchecked);
    // The others are a click away, for this description.
    f.window->diagramPage()->switches()->setStandardShown(QStringLiteral("Rec.709"), true);
    QCOMPARE(key(f)->entry(QStringLiteral("Rec.709"))->checkState(), Qt::Checked);
    f.window->setDescription(description, QString());
    QCOMPARE(key(f)->entry(QStringLiteral("Rec.709"))->checkState(), Qt::Unchecked);
}

// An entry that changes is changed in its place; what comes of it must be what all entries made anew would be.
void LayerKeyTest::changedKeyEqualsANewOne()
{
    const auto entriesOf = [](const LayerKey &key) {
        QStringList entries;
        for (int row = 0; row < key.count(); ++row) {
            const QListWidgetItem *item = key.item(row);
            QStringList data{item->text(), item->toolTip(), QString::number(int(item->flags()))};
            for (int role = Qt::UserRole; role < Qt::UserRole + 8; ++role) {
                data.append(item->data(role).toString());
            }
            data << item->data(Qt::AccessibleTextRole).toString() << item->data(Qt::CheckStateRole).toString();
            entries.append(data.join(QLatin1Char('|')));
        }
        return entries;
    };
    Document document;
    LayerSwitches switches;
    LayerKey changed(&document, &switches);
    DisplayDescription description;
    QStringList names;
    for (int i = 0; i < 400; ++i) {
        names.append(QStringLiteral("Standard %1").arg(i));
        description.gamuts.emplace_back(Model::ColorGamut(names.last().toStdString(), Model::rec709().getTargets()));
    }
    const QVector<QStringList> steps{names.mid(0, 5), names.mid(2, 3), names.mid(0, 5),
        names.mid(1, 1) + names.mid(4, 4), {}, names.mid(0, 7), names.mid(0, 3) + names.mid(5, 2), names,
        names.mid(0, 200) + names.mid(201), names.mid(0, 3)};
    for (const QStringList &standards : steps) {
        for (const QString &target : {QString(), names.at(7), names.at(8)}) {
            description.standards = standards;
            description.target = target;
            document.change(description, QStringLiteral("step"));
            LayerKey fresh(&document, &switches);
            QCOMPARE(entriesOf(changed), entriesOf(fresh));
            QCOMPARE(changed.sizeHint(), fresh.sizeHint());
        }
    }
}

// Of thousands, to make them anew would take longer than a step may.
void LayerKeyTest::standardsStayWhenTheTargetIsEdited()
{
    WindowFixture f;
    QVector<QListWidgetItem *> before;
    for (int row = 0; row < key(f)->count(); ++row) {
        before.append(key(f)->item(row));
    }
    const QString target = f.document().description().target;
    f.change();
    QVERIFY(f.document().description().target != target);
    QVERIFY(key(f)->entry(shownGamutName(f.document().description().target)));
    QCOMPARE(key(f)->count(), int(before.size()));
    for (int row = 0; row < key(f)->count(); ++row) {
        QCOMPARE(key(f)->item(row), before.at(row));
    }
}

void LayerKeyTest::keySpeaks()
{
    WindowFixture f;
    const QAccessibleInterface *list = QAccessible::queryAccessibleInterface(key(f));
    QVERIFY(list);
    QStringList names;
    for (int i = 0; i < list->childCount(); ++i) {
        const QAccessibleInterface *child = list->child(i);
        names.append(child->text(QAccessible::Name));
        if (names.last() == QLatin1String("LED wall, Original")) {
            QVERIFY(child->state().checkable);
            QVERIFY(child->state().checked);
        }
    }
    QVERIFY2(names.contains(QStringLiteral("LED wall, Original")), qPrintable(names.join(QLatin1Char(';'))));
    QVERIFY(names.contains(QStringLiteral("Isotherms")));
}

void LayerKeyTest::fontsInPixelsAreScaled()
{
    const QFont former = QApplication::font();
    const auto restore = qScopeGuard([&former] { QApplication::setFont(former); });
    QFont font = former;
    font.setPixelSize(20);
    QApplication::setFont(font);
    WindowFixture f;
    QCOMPARE(key(f)->font().pixelSize(), 17);
}

QTEST_MAIN(LayerKeyTest)
#include "layerkeytest.moc"
