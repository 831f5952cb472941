// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "drawing/layerswitches.h"
#include "editing/targetsession.h"
#include "panel/layerkey.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "panel/verdict.h"
#include "window/lens.h"

#include <ceiechart/diagram/diagrampainter.h>

#include <QAccessible>
#include <QActionGroup>
#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QStyleHints>
#include <QtTest>

#include <cmath>

using namespace gamutviewer;
using ceiechart::DiagramContent;
using ceiechart::DiagramGamut;
using ceiechart::DiagramLayer;
using ceiechart::DiagramView;
using ceiechart::GamutRole;

class DiagramPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDragIsOneStep();
    void theFirstDragKeepsTheHandleUnderThePointer();
    void theFirstKeyStepKeepsTheDiagram();
    void panelAndVerdictFollowADrag();
    void escapeCancelsADrag();
    void undoInADragEndsIt();
    void arrowKeysMove();
    void shiftIsSlow();
    void heldAndLockedAreRefused();
    void selectionIsShared();
    void deselectionIsShared();
    void hiddenTargetsKeepTheSelection();
    void lensMovesTheWhite();
    void lensFollowsTheWhite();
    void lensShowsTheRingsAfterAnEdit();
    void ringsMoveWithTheWhite();
    void lensMakesRoom();
    void diagramIsSwitched();
    void viewsOfTheDiagram();
    void keySwitchesLayers_data();
    void keySwitchesLayers();
    void doubleClickShowsAlone();
    void anotherEntryIsShownAlone();
    void showingAloneKeepsOtherSwitches();
    void aloneEndsWithTheDescription();
    void returnShowsAlone();
    void colorsAreSwitched();
    void standardsAreThoseOfTheDescription();
    void keySpeaks();
    void targetIsMovedInside();
    void targetIsMovedInsideOfTheMeasuredGamut();
    void groundsArePointedOut();
    void verdictKeepsItsHeight();
    void tolerancesFollowADrag();
};

namespace {

DocumentView *view(const WindowFixture &f)
{
    return f.window->diagramPage()->view();
}

LayerKey *key(const WindowFixture &f)
{
    return f.window->diagramPage()->key();
}

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

void DiagramPageTest::aDragIsOneStep()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    DiagramPointer pointer(view(f));
    const QPointF from = f.xy(Vertex::Green);
    pointer.drag(from, QPointF(0.30, 0.60));
    QVERIFY(qAbs(f.xy(Vertex::Green).x() - 0.30) < 2.0 * pointer.pixel());
    QVERIFY(qAbs(f.xy(Vertex::Green).y() - 0.60) < 2.0 * pointer.pixel());
    QCOMPARE(f.document().history()->count(), 1);
    // To the digits that are shown.
    QCOMPARE(QString::number(f.xy(Vertex::Green).x(), 'f', 4).toDouble(), f.xy(Vertex::Green).x());
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.xy(Vertex::Green), from);
    QVERIFY(!f.window->isWindowModified());
    QCOMPARE(view(f)->gamut(GamutRole::Target)->getTargets().green.x, from.x());
}

void DiagramPageTest::theFirstDragKeepsTheHandleUnderThePointer()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    const auto handle = [&] {
        const QPoint position = view(f)->viewport().toPosition(f.xy(Vertex::Green)).toPoint();
        return view(f)->mapTo(f.window.get(), position);
    };
    const int width = key(f)->width();
    const QPoint start = handle();
    const auto send = [&](QEvent::Type type, const QPoint &at, Qt::MouseButton button, Qt::MouseButtons buttons) {
        const QPoint position = view(f)->mapFrom(f.window.get(), at);
        QMouseEvent event(type, position, view(f)->mapToGlobal(position), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(view(f), &event);
        QCoreApplication::processEvents(); // the layout, too
    };
    send(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    QPoint pointer = start;
    const int threshold = QGuiApplication::styleHints()->startDragDistance();
    for (int step = 1; step <= 10; ++step) {
        pointer = start + QPoint(4, 3) * step; // 5 pixels
        send(QEvent::MouseMove, pointer, Qt::NoButton, Qt::LeftButton);
        if (5 * step <= threshold) {
            QCOMPARE(handle(), start);
        } else if (10 * step >= 3 * threshold) {
            QVERIFY((handle() - pointer).manhattanLength() <= 2);
        }
    }
    send(QEvent::MouseButtonRelease, pointer, Qt::LeftButton, Qt::NoButton);
    QVERIFY((handle() - pointer).manhattanLength() <= 2);
    QVERIFY(key(f)->entry(QStringLiteral("DCI-P3(D65) (edited)")));
    QCOMPARE(key(f)->width(), width);
}

void DiagramPageTest::theFirstKeyStepKeepsTheDiagram()
{
    WindowFixture f;
    const QSize size = view(f)->size();
    view(f)->setFocus();
    QTest::keyClick(view(f), Qt::Key_B);
    QTest::keyClick(view(f), Qt::Key_Right);
    QCoreApplication::processEvents();
    QVERIFY(key(f)->entry(QStringLiteral("DCI-P3(D65) (edited)")));
    QCOMPARE(view(f)->size(), size);
}

void DiagramPageTest::panelAndVerdictFollowADrag()
{
    WindowFixture f;
    f.forgetMeasuredGamut();
    f.window->session()->reset(QStringLiteral("LED wall"));
    QVERIFY(f.window->panel()->verdict()->text().startsWith(QString::fromUtf8("✓")));
    DiagramPointer pointer(view(f));
    pointer.press(f.xy(Vertex::Green));
    pointer.move(QPointF(0.10, 0.78));
    // Before the button is up.
    const Verdict *verdict = f.window->panel()->verdict();
    QVERIFY(verdict->text().startsWith(QString::fromUtf8("✗")));
    QVERIFY(verdict->text().contains(QLatin1String("green")));
    QCOMPARE(verdict->accessibleName(), verdict->text());
    QCOMPARE(f.window->panel()->editor()->firstCoordinate(Vertex::Green)->value(), f.xy(Vertex::Green).x());
    QVERIFY(view(f)->editNote().contains(QLatin1String("outside")));
    pointer.release(QPointF(0.10, 0.78));
}

void DiagramPageTest::escapeCancelsADrag()
{
    WindowFixture f;
    view(f)->setFocus();
    const QPointF before = f.xy(Vertex::Green);
    DiagramPointer pointer(view(f));
    pointer.press(before);
    pointer.move(QPointF(0.3, 0.6));
    QVERIFY(f.xy(Vertex::Green) != before);
    QTest::keyClick(view(f), Qt::Key_Escape);
    QCOMPARE(f.xy(Vertex::Green), before);
    pointer.move(QPointF(0.35, 0.5));
    pointer.release(QPointF(0.35, 0.5));
    QCOMPARE(f.xy(Vertex::Green), before);
    QCOMPARE(f.document().history()->count(), 0);
    QVERIFY(!f.document().isDragging());
}

void DiagramPageTest::undoInADragEndsIt()
{
    WindowFixture f;
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    const QPointF before = f.xy(Vertex::Green);
    DiagramPointer pointer(view(f));
    pointer.press(before);
    pointer.move(QPointF(0.3, 0.6));
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    // The drag is the last thing done; the step before it stays.
    QCOMPARE(f.xy(Vertex::Green), before);
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
    QVERIFY(!view(f)->isEditing());
    pointer.move(QPointF(0.35, 0.5));
    pointer.release(QPointF(0.35, 0.5));
    QCOMPARE(f.xy(Vertex::Green), before);
    QCOMPARE(f.document().history()->count(), 1);
}

void DiagramPageTest::arrowKeysMove()
{
    WindowFixture f;
    view(f)->setFocus();
    QTest::keyClick(view(f), Qt::Key_B);
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Blue));
    const QPointF before = f.xy(Vertex::Blue);
    QTest::keyClick(view(f), Qt::Key_Right);
    QVERIFY(f.xy(Vertex::Blue).x() > before.x());
    QCOMPARE(f.xy(Vertex::Blue).y(), before.y());
    QCOMPARE(f.document().history()->count(), 1);
    f.document().history()->undo();
    QCOMPARE(f.xy(Vertex::Blue), before);
}

void DiagramPageTest::shiftIsSlow()
{
    WindowFixture f;
    view(f)->setFocus();
    QTest::keyClick(view(f), Qt::Key_B);
    const double start = f.xy(Vertex::Blue).x();
    QTest::keyClick(view(f), Qt::Key_Right);
    const double step = f.xy(Vertex::Blue).x() - start;
    QTest::keyClick(view(f), Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(qAbs(f.xy(Vertex::Blue).x() - start - 1.1 * step) < 1e-9);
}

void DiagramPageTest::heldAndLockedAreRefused()
{
    WindowFixture f;
    f.window->session()->setLockPrimaries(true);
    DiagramPointer pointer(view(f));
    const QPointF green = f.xy(Vertex::Green);
    pointer.drag(green, QPointF(0.3, 0.6));
    QCOMPARE(f.xy(Vertex::Green), green);
    QVERIFY(!f.window->statusBar()->currentMessage().isEmpty());
    f.window->session()->setLockPrimaries(false);
    f.window->session()->setHoldWhite(true);
    const QPointF white = f.xy(Vertex::White);
    pointer.drag(white, QPointF(0.33, 0.36));
    QCOMPARE(f.xy(Vertex::White), white);
    // The white stays while a primary is moved.
    pointer.drag(green, QPointF(0.3, 0.6));
    QVERIFY(f.xy(Vertex::Green) != green);
    QVERIFY(qAbs(f.xy(Vertex::White).x() - white.x()) < 1e-9);
}

void DiagramPageTest::selectionIsShared()
{
    WindowFixture f;
    f.window->panel()->editor()->firstCoordinate(Vertex::Blue)->setFocus();
    QCOMPARE(view(f)->selectedVertex(), std::make_optional(Vertex::Blue));
    view(f)->setFocus();
    QTest::keyClick(view(f), Qt::Key_W);
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::White));
    QCOMPARE(f.window->diagramPage()->lens()->view()->selectedVertex(), std::make_optional(Vertex::White));
}

void DiagramPageTest::deselectionIsShared()
{
    WindowFixture f;
    DiagramView *lens = f.window->diagramPage()->lens()->view();
    TargetSession *session = f.window->session();
    const auto boldLabels = [&f] {
        QStringList bold;
        for (const QLabel *label : f.window->panel()->editor()->findChildren<QLabel *>()) {
            if (label->font().bold() && label->isVisibleTo(f.window->panel()->editor())) {
                bold.append(label->text());
            }
        }
        return bold;
    };
    session->select(std::nullopt);
    const QStringList always = boldLabels(); // such as the name of the target
    view(f)->setFocus();
    for (DiagramView *from : {static_cast<DiagramView *>(view(f)), lens}) {
        session->select(Vertex::Red);
        QCOMPARE(view(f)->selectedVertex(), std::make_optional(Vertex::Red));
        QCOMPARE(lens->selectedVertex(), std::make_optional(Vertex::Red));
        QCOMPARE(boldLabels().count(), always.count() + 1);
        QTest::keyClick(from, Qt::Key_Escape);
        QVERIFY(!session->selected());
        QCOMPARE(view(f)->selectedVertex(), std::optional<Vertex>());
        QCOMPARE(lens->selectedVertex(), std::optional<Vertex>());
        QCOMPARE(boldLabels(), always);
    }
    // An edit of the document selects nothing by itself.
    QVERIFY(session->setChromaticity(Vertex::Green, QPointF(0.27, 0.68)));
    QCOMPARE(view(f)->selectedVertex(), std::optional<Vertex>());
    session->select(Vertex::Red);
    QCOMPARE(view(f)->selectedVertex(), std::make_optional(Vertex::Red));
}

void DiagramPageTest::hiddenTargetsKeepTheSelection()
{
    WindowFixture f;
    f.window->session()->select(Vertex::Blue);
    DiagramContent content = view(f)->content();
    for (DiagramGamut &gamut : content.gamuts) {
        gamut.visible = gamut.visible && gamut.role != GamutRole::Target;
    }
    view(f)->setContent(content);
    QCOMPARE(view(f)->selectedVertex(), std::optional<Vertex>());
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Blue));
    view(f)->refresh();
    QCOMPARE(view(f)->selectedVertex(), std::make_optional(Vertex::Blue));
}

void DiagramPageTest::lensMovesTheWhite()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    DocumentView *lens = f.window->diagramPage()->lens()->view();
    DiagramPointer pointer(lens);
    const QPointF white = f.xy(Vertex::White);
    const QPointF to = white + QPointF(0.004, 0.002);
    pointer.drag(white, to);
    // Far finer than in the diagram that it lies on.
    QVERIFY(pointer.pixel() < 0.2 * DiagramPointer(view(f)).pixel());
    QVERIFY(qAbs(f.xy(Vertex::White).x() - to.x()) < 2.0 * pointer.pixel() + 1e-4);
    QCOMPARE(f.document().history()->count(), 1);
    QCOMPARE(view(f)->gamut(GamutRole::Target)->getTargets().white.x, f.xy(Vertex::White).x());
    lens->setFocus();
    QTest::keyClick(lens, Qt::Key_W);
    const QPointF before = f.xy(Vertex::White);
    QTest::keyClick(lens, Qt::Key_Up);
    QVERIFY(f.xy(Vertex::White).y() > before.y());
}

void DiagramPageTest::lensFollowsTheWhite()
{
    WindowFixture f;
    const DocumentView *lens = f.window->diagramPage()->lens()->view();
    for (const double kelvin : {7000.0, 3500.0}) {
        QVERIFY(f.window->session()->setWhiteTemperature(kelvin, 0.0));
        QVERIFY(lens->viewport().plot().contains(lens->viewport().toPosition(f.xy(Vertex::White))));
        QVERIFY(lens->accessibleDescription().contains(QStringLiteral("%1 K").arg(kelvin)));
    }
}

void DiagramPageTest::lensShowsTheRingsAfterAnEdit()
{
    WindowFixture f;
    const DocumentView *lens = f.window->diagramPage()->lens()->view();
    // Near enough for the white itself to be seen still.
    const QPointF white = f.xy(Vertex::White) + QPointF(0.004, 0.004);
    QVERIFY(lens->viewport().plot().contains(lens->viewport().toPosition(white)));
    QVERIFY(f.window->session()->setChromaticity(Vertex::White, white));
    const QPolygonF ring = ceiechart::DiagramPainter::ring(lens->viewport(), f.xy(Vertex::White), 0.005);
    QVERIFY(lens->viewport().plot().contains(ring.boundingRect()));
}

void DiagramPageTest::ringsMoveWithTheWhite()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    DocumentView *lens = f.window->diagramPage()->lens()->view();
    DiagramPointer pointer(lens);
    const QPointF white = f.xy(Vertex::White);
    pointer.press(white);
    pointer.move(white + QPointF(0.004, 0.002));
    QVERIFY(f.xy(Vertex::White) != white);
    for (const DocumentView *shown :
        {static_cast<const DocumentView *>(lens), static_cast<const DocumentView *>(view(f))}) {
        QCOMPARE(shown->content().rings.size(), 1);
        QCOMPARE(shown->content().rings.first().xy, f.xy(Vertex::White));
    }
    QTest::keyClick(lens, Qt::Key_Escape);
    QCOMPARE(lens->content().rings.first().xy, white);
}

void DiagramPageTest::lensMakesRoom()
{
    WindowFixture f;
    Lens *lens = f.window->diagramPage()->lens();
    DiagramPointer pointer(view(f));
    pointer.press(f.xy(Vertex::Green));
    pointer.move(QPointF(0.45, 0.75));
    QVERIFY(!lens->isVisible());
    pointer.release(QPointF(0.45, 0.75));
    QVERIFY(lens->isVisible());
    f.window->diagramPage()->lensAction()->trigger();
    QVERIFY(!lens->isVisible());
    pointer.drag(f.xy(Vertex::Green), QPointF(0.3, 0.6));
    QVERIFY(!lens->isVisible());
}

void DiagramPageTest::diagramIsSwitched()
{
    WindowFixture f;
    const QList<QAction *> diagrams = f.window->diagramPage()->diagrams()->actions();
    const Model::Diagram expected[] = {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960};
    QCOMPARE(diagrams.size(), 3);
    for (int i = 2; i >= 0; --i) {
        diagrams.at(i)->trigger();
        QCOMPARE(view(f)->diagram(), expected[i]);
        QCOMPARE(f.window->diagramPage()->lens()->view()->diagram(), expected[i]);
        QVERIFY(diagrams.at(i)->isChecked());
        // The lens covers no handle.
        const QRect lens = f.window->diagramPage()->lens()->geometry();
        for (const Vertex vertex : allVertices) {
            QVERIFY(!lens.contains(view(f)->viewport().toPosition(f.xy(vertex)).toPoint()));
        }
    }
}

void DiagramPageTest::viewsOfTheDiagram()
{
    WindowFixture f;
    const auto trigger = [&](const QString &text) {
        for (QAction *action : f.window->diagramPage()->actions()) {
            if (action->text() == text) {
                action->trigger();
            }
        }
    };
    trigger(QStringLiteral("White"));
    const double white = view(f)->zoomFactor();
    QVERIFY(white > 10.0);
    // There the lens has no more to show.
    QVERIFY(!f.window->diagramPage()->lens()->isVisible());
    trigger(QStringLiteral("Target"));
    QVERIFY(view(f)->zoomFactor() < white);
    trigger(QStringLiteral("White"));
    trigger(QStringLiteral("All"));
    QCOMPARE(view(f)->zoomFactor(), 1.0);
    QVERIFY(f.window->diagramPage()->lens()->isVisible());
}

void DiagramPageTest::keySwitchesLayers_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"DCI-P3(D65)", "LED wall", "LED wall, warm", "Rec.709", "Common area", "Given up",
             "Planckian locus", "Isotherms", "Wavelengths", "CMY points", "Axes", "Grid"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void DiagramPageTest::keySwitchesLayers()
{
    QFETCH(QString, name);
    WindowFixture f;
    QListWidgetItem *entry = key(f)->entry(name);
    QVERIFY(entry);
    QCOMPARE(entry->checkState(), Qt::Checked);
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

void DiagramPageTest::doubleClickShowsAlone()
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

void DiagramPageTest::anotherEntryIsShownAlone()
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

void DiagramPageTest::showingAloneKeepsOtherSwitches()
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

void DiagramPageTest::aloneEndsWithTheDescription()
{
    WindowFixture f;
    doubleClick(f, QStringLiteral("LED wall"));
    f.window->setDescription(f.document().description(), QString());
    f.window->diagramPage()->switches()->setShown(DiagramLayer::Targets, true);
    doubleClick(f, QStringLiteral("LED wall"));
    QCOMPARE(shownGamuts(f), QStringList(QStringLiteral("LED wall")));
}

void DiagramPageTest::returnShowsAlone()
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

void DiagramPageTest::colorsAreSwitched()
{
    WindowFixture f;
    using ceiechart::HorseshoeColors;
    for (const HorseshoeColors colors : {HorseshoeColors::Full, HorseshoeColors::None, HorseshoeColors::Dimmed}) {
        QTest::mouseClick(key(f)->colors()->button(int(colors)), Qt::LeftButton);
        QCOMPARE(view(f)->horseshoeColors(), colors);
        QVERIFY(key(f)->colors()->button(int(colors))->isChecked());
    }
}

void DiagramPageTest::standardsAreThoseOfTheDescription()
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

void DiagramPageTest::keySpeaks()
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

void DiagramPageTest::targetIsMovedInside()
{
    WindowFixture f;
    f.forgetMeasuredGamut();
    QPushButton *fit = f.window->panel()->verdict()->fitButton();
    QVERIFY(fit->isEnabled());
    QTest::mouseClick(fit, Qt::LeftButton);
    // The published target has no luminance to judge.
    const Verdict *verdict = f.window->panel()->verdict();
    QVERIFY(verdict->text().startsWith(QLatin1String("?")));
    QVERIFY(!verdict->text().contains(QString::fromUtf8("✗")));
    QVERIFY(!fit->isEnabled());
    QCOMPARE(f.document().history()->count(), 1);
    f.window->session()->setLuminanceUnit(LuminanceUnit::CandelaPerSquareMetre);
    QVERIFY2(verdict->text().startsWith(QString::fromUtf8("✓")), qPrintable(verdict->text()));
}

void DiagramPageTest::targetIsMovedInsideOfTheMeasuredGamut()
{
    WindowFixture f;
    f.window->session()->reset(QStringLiteral("LED wall"));
    // It fits the original, which it is; the measured gamut is smaller at green.
    QPushButton *fit = f.window->panel()->verdict()->fitButton();
    QVERIFY(fit->isEnabled());
    QVERIFY2(fit->text().contains(QLatin1String("measured gamut")), qPrintable(fit->text()));
    const auto isOutside = [&f](const std::optional<DisplayGamut> &gamut) {
        return Model::primariesOutside(f.document().target()->getTargets(), gamut->getTargets()).any();
    };
    QVERIFY(isOutside(f.document().measured()));
    QTest::mouseClick(fit, Qt::LeftButton);
    QVERIFY(!isOutside(f.document().measured()));
}

void DiagramPageTest::groundsArePointedOut()
{
    WindowFixture f;
    QListWidget *lines = f.window->panel()->verdict()->lines();
    QVERIFY(lines->count() >= 3);
    QListWidgetItem *green = nullptr;
    for (int row = 0; row < lines->count(); ++row) {
        if (lines->item(row)->text().contains(QLatin1String("Green"))) {
            green = lines->item(row);
        }
    }
    QVERIFY(green);
    QVERIFY(green->toolTip().contains(QLatin1String("green")));
    lines->scrollToItem(green);
    QTest::mouseClick(lines->viewport(), Qt::LeftButton, Qt::NoModifier, lines->visualItemRect(green).center());
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Green));
    QVERIFY(view(f)->zoomFactor() > 5.0);
    const QPointF away = view(f)->centre() - f.xy(Vertex::Green);
    QVERIFY(std::hypot(away.x(), away.y()) < 1e-6);
    // And by keyboard, another one.
    lines->setFocus();
    lines->setCurrentRow(0);
    QTest::keyClick(lines, Qt::Key_Return);
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Red));
}

void DiagramPageTest::verdictKeepsItsHeight()
{
    WindowFixture f;
    Verdict *verdict = f.window->panel()->verdict();
    const int height = verdict->height();
    const int width = verdict->width();
    Tolerances tolerances;
    tolerances.limits.whiteUv = 0.004;
    tolerances.limits.primariesUv = 0.004;
    f.window->session()->setTolerances(tolerances);
    QCoreApplication::processEvents();
    QVERIFY(verdict->lines()->count() >= 7);
    QCOMPARE(verdict->height(), height);
    DiagramPointer pointer(view(f));
    pointer.press(f.xy(Vertex::Green));
    pointer.move(QPointF(0.28, 0.60));
    QCoreApplication::processEvents();
    QCOMPARE(verdict->height(), height);
    QCOMPARE(verdict->width(), width);
    pointer.release(QPointF(0.28, 0.60));
    f.window->setDescription(DisplayDescription(), QString());
    QCoreApplication::processEvents();
    QVERIFY(verdict->text().startsWith(QLatin1String("?")));
    QCOMPARE(verdict->height(), height);
}

void DiagramPageTest::tolerancesFollowADrag()
{
    WindowFixture f;
    Tolerances tolerances;
    tolerances.limits.primariesUv = 0.01;
    QCOMPARE(view(f)->content().rings.size(), 1);
    f.window->session()->setTolerances(tolerances);
    QCOMPARE(view(f)->content().rings.size(), 4);
    const auto ring = [&f](int i) { return view(f)->content().rings.at(i); };
    const auto line = [&f] {
        const QStringList lines = f.window->panel()->verdict()->text().split(QLatin1Char('\n'));
        return lines.filter(QLatin1String("Measured green")).value(0);
    };
    QVERIFY(line().startsWith(QString::fromUtf8("✗")));
    const Model::Target measured = f.document().measured()->getTargets().green;
    DiagramPointer pointer(view(f));
    pointer.press(f.xy(Vertex::Green));
    pointer.move(QPointF(measured.x, measured.y));
    QCOMPARE(ring(2).xy, f.xy(Vertex::Green));
    QCOMPARE(ring(2).radii, QVector<double>{0.01});
    QVERIFY2(line().startsWith(QString::fromUtf8("✓")), qPrintable(line()));
    pointer.release(QPointF(measured.x, measured.y));
    f.window->session()->setTolerances(std::nullopt);
    QCOMPARE(view(f)->content().rings.size(), 1);
    QVERIFY(line().isEmpty());
}

QTEST_MAIN(DiagramPageTest)
#include "diagrampagetest.moc"
