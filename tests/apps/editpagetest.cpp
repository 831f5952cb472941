// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "drawing/diagramkey.h"
#include "editing/targetsession.h"
#include "panel/groupedtable.h"
#include "panel/sidepanel.h"
#include "panel/signallog.h"
#include "panel/targeteditor.h"

#include <QCheckBox>
#include <QLabel>
#include <QtTest>

#include <cmath>

using namespace gamutviewer;

class EditPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dragMovesAPrimary_data();
    void dragMovesAPrimary();
    void panelFollowsTheDrag();
    void primaryStaysInItsRegion();
    void escapeCancelsADrag();
    void moveAfterACancelledDragDoesNothing();
    void undoDuringADragCancelsIt();
    void dragOfTheWhite();
    void clickOnAHandleLeavesItThere_data();
    void clickOnAHandleLeavesItThere();
    void clickBesideTheHandlesBringsThePrimary();
    void heldWhiteStays();
    void lockedPrimariesStay();
    void dragSnapsToAStandard();
    void snapReachesAsFarOnBothDiagrams_data();
    void snapReachesAsFarOnBothDiagrams();
    void everySwitchChangesTheDiagram_data();
    void everySwitchChangesTheDiagram();
    void keyNamesWhatIsShown();
    void digitsStayWithinTheDiagram();
    void focusIsFramed();
    void keysSelectAndNudge();
    void heldKeyIsOneStep();
    void nudgeInUv();
    void signalsAreLogged();

private:
    static EditPage *page(WindowFixture &f, bool uv) { return uv ? f.window->uvPage() : f.window->editPage(); }
};

namespace {

// A pixel and a half of the chart.
constexpr double pointerTolerance = 0.003;

bool near(const QPointF &a, const QPointF &b, double tolerance = pointerTolerance)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) < tolerance;
}

//! Goes to a page as its users do, and gives what has the keyboard then.
QWidget *pageByKey(WindowFixture &f, Qt::Key key)
{
    QTest::keyClick(f.window.get(), key, Qt::ControlModifier);
    QCoreApplication::processEvents();
    return QApplication::focusWidget();
}

} // namespace

void EditPageTest::dragMovesAPrimary_data()
{
    QTest::addColumn<bool>("uv");
    QTest::addColumn<int>("vertex");
    QTest::addColumn<QPointF>("to");
    for (const bool uv : {false, true}) {
        const QByteArray diagram = uv ? "u'v' " : "xy ";
        QTest::newRow((diagram + "red").constData()) << uv << int(Vertex::Red) << QPointF(0.60, 0.33);
        QTest::newRow((diagram + "green").constData()) << uv << int(Vertex::Green) << QPointF(0.30, 0.58);
        QTest::newRow((diagram + "blue").constData()) << uv << int(Vertex::Blue) << QPointF(0.18, 0.12);
    }
}

void EditPageTest::dragMovesAPrimary()
{
    QFETCH(bool, uv);
    QFETCH(int, vertex);
    QFETCH(QPointF, to);
    WindowFixture f;
    f.window->session()->setSnaps(false);
    f.show(page(f, uv));
    const QPointF before = f.xy(Vertex(vertex));
    const QPointF other = f.xy(Vertex((vertex + 1) % 3));
    ChartPointer(page(f, uv)).drag(before, to);
    QVERIFY(near(f.xy(Vertex(vertex)), to));
    QVERIFY(!near(f.xy(Vertex(vertex)), before));
    QVERIFY(near(f.xy(Vertex((vertex + 1) % 3)), other, 1e-9));
    QVERIFY(f.document().description().target.endsWith(QLatin1String("(edited)")));
    QCOMPARE(f.document().history()->count(), 1);
    f.document().history()->undo();
    QVERIFY(near(f.xy(Vertex(vertex)), before, 1e-9));
}

void EditPageTest::panelFollowsTheDrag()
{
    WindowFixture f;
    f.show(f.window->editPage());
    f.window->session()->setSnaps(false);
    const SidePanel *panel = f.window->panel();
    const QString coverage = panel->coverage()->item(1, 2)->text();
    const double before = panel->editor()->firstCoordinate(Vertex::Red)->value();
    ChartPointer pointer(f.window->editPage());
    pointer.press(f.xy(Vertex::Red));
    pointer.move(QPointF(0.58, 0.33));
    // The button is still down.
    QVERIFY(f.document().isDragging());
    QVERIFY(std::fabs(panel->editor()->firstCoordinate(Vertex::Red)->value() - before) > 0.05);
    QCOMPARE(panel->editor()->firstCoordinate(Vertex::Red)->value(), f.xy(Vertex::Red).x());
    QVERIFY(panel->coverage()->item(1, 2)->text() != coverage);
    pointer.release(QPointF(0.58, 0.33));
    QVERIFY(!f.document().isDragging());
}

void EditPageTest::primaryStaysInItsRegion()
{
    WindowFixture f;
    f.show(f.window->editPage());
    ChartPointer pointer(f.window->editPage());
    pointer.press(f.xy(Vertex::Red));
    pointer.move(QPointF(0.60, 0.33));
    const QPointF inside = f.xy(Vertex::Red);
    pointer.move(QPointF(0.2, 0.6)); // green's region
    pointer.release(QPointF(0.2, 0.6));
    QVERIFY(near(f.xy(Vertex::Red), inside, 1e-9));
    QCOMPARE(f.xy(Vertex::Green).x(), 0.265);
}

void EditPageTest::escapeCancelsADrag()
{
    WindowFixture f;
    f.show(f.window->editPage());
    const QPointF before = f.xy(Vertex::Red);
    ChartPointer pointer(f.window->editPage());
    pointer.press(before);
    pointer.move(QPointF(0.60, 0.33));
    QVERIFY(!near(f.xy(Vertex::Red), before, 0.02));
    QTest::keyClick(f.window->editPage()->chart()->view(), Qt::Key_Escape);
    QVERIFY(near(f.xy(Vertex::Red), before, 1e-9));
    QVERIFY(!f.document().isDragging());
    QCOMPARE(f.document().description().target, QStringLiteral("DCI-P3(D65)"));
    QCOMPARE(f.document().history()->count(), 0);
}

void EditPageTest::moveAfterACancelledDragDoesNothing()
{
    WindowFixture f;
    f.show(f.window->editPage());
    const QPointF before = f.xy(Vertex::Red);
    ChartPointer pointer(f.window->editPage());
    pointer.press(before);
    pointer.move(QPointF(0.60, 0.33));
    QTest::keyClick(f.window->editPage()->chart()->view(), Qt::Key_Escape);
    pointer.move(QPointF(0.58, 0.34));
    pointer.release(QPointF(0.58, 0.34));
    pointer.move(QPointF(0.57, 0.34), Qt::NoButton);
    QVERIFY(near(f.xy(Vertex::Red), before, 1e-9));
    // The next drag works again.
    pointer.drag(before, QPointF(0.60, 0.33));
    QVERIFY(near(f.xy(Vertex::Red), QPointF(0.60, 0.33)));
}

void EditPageTest::undoDuringADragCancelsIt()
{
    WindowFixture f;
    f.show(f.window->editPage());
    const QPointF before = f.xy(Vertex::Red);
    f.window->session()->setChromaticity(Vertex::Red, QPointF(0.67, 0.32));
    ChartPointer pointer(f.window->editPage());
    pointer.press(f.xy(Vertex::Red));
    pointer.move(QPointF(0.60, 0.33));
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(near(f.xy(Vertex::Red), QPointF(0.67, 0.32), 1e-9));
    pointer.release(QPointF(0.60, 0.33));
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(near(f.xy(Vertex::Red), before, 1e-9));
}

void EditPageTest::dragOfTheWhite()
{
    for (const bool uv : {false, true}) {
        WindowFixture f;
        f.show(page(f, uv));
        f.window->session()->setSnaps(false);
        // The handle is grabbed where it was painted.
        page(f, uv)->chart()->grab();
        const QPointF before = f.xy(Vertex::White);
        ChartPointer(page(f, uv)).drag(before, QPointF(0.34, 0.37));
        QVERIFY(near(f.xy(Vertex::White), QPointF(0.34, 0.37)));
        QCOMPARE(f.xy(Vertex::Red).x(), 0.68);
        QCOMPARE(f.document().history()->count(), 1);
        f.document().history()->undo();
        QVERIFY(near(f.xy(Vertex::White), before, 1e-9));
    }
}

void EditPageTest::clickOnAHandleLeavesItThere_data()
{
    QTest::addColumn<int>("vertex");
    for (const Vertex vertex : allVertices) {
        QTest::newRow(qPrintable(vertexName(vertex))) << int(vertex);
    }
}

void EditPageTest::clickOnAHandleLeavesItThere()
{
    QFETCH(int, vertex);
    WindowFixture f;
    f.show(f.window->editPage());
    f.window->editPage()->chart()->grab();
    f.window->session()->select(vertex == int(Vertex::Blue) ? Vertex::Red : Vertex::Blue);
    const QPointF before = f.xy(Vertex(vertex));
    // Not in the very middle of it.
    const QPointF aim = before + QPointF(0.004, 0.004);
    ChartPointer pointer(f.window->editPage());
    pointer.press(aim);
    pointer.release(aim);
    QVERIFY(near(f.xy(Vertex(vertex)), before, 1e-12));
    QCOMPARE(f.document().history()->count(), 0);
    QCOMPARE(int(f.window->session()->selected()), vertex);
}

void EditPageTest::clickBesideTheHandlesBringsThePrimary()
{
    WindowFixture f;
    f.show(f.window->editPage());
    f.window->session()->setSnaps(false);
    ChartPointer pointer(f.window->editPage());
    pointer.press(QPointF(0.55, 0.35));
    pointer.release(QPointF(0.55, 0.35));
    QVERIFY(near(f.xy(Vertex::Red), QPointF(0.55, 0.35)));
    QCOMPARE(f.document().history()->count(), 1);
}

void EditPageTest::heldWhiteStays()
{
    WindowFixture f;
    f.show(f.window->editPage());
    QTest::mouseClick(f.window->panel()->editor()->holdWhite(), Qt::LeftButton);
    QVERIFY(f.window->session()->holdWhite());
    const QPointF white = f.xy(Vertex::White);
    ChartPointer pointer(f.window->editPage());
    pointer.drag(f.xy(Vertex::Red), QPointF(0.60, 0.33));
    QVERIFY(near(f.xy(Vertex::Red), QPointF(0.60, 0.33)));
    QVERIFY(near(f.xy(Vertex::White), white, 1e-12));
    f.window->editPage()->chart()->grab();
    pointer.drag(white, QPointF(0.34, 0.37));
    QVERIFY(near(f.xy(Vertex::White), white, 1e-12));
    QVERIFY(!f.window->panel()->editor()->temperature()->isEnabled());
}

void EditPageTest::lockedPrimariesStay()
{
    WindowFixture f;
    f.show(f.window->editPage());
    QTest::mouseClick(f.window->panel()->editor()->lockPrimaries(), Qt::LeftButton);
    const QPointF red = f.xy(Vertex::Red);
    ChartPointer pointer(f.window->editPage());
    pointer.drag(red, QPointF(0.60, 0.33));
    QVERIFY(near(f.xy(Vertex::Red), red, 1e-12));
    QVERIFY(!f.window->panel()->editor()->firstCoordinate(Vertex::Red)->isEnabled());
    f.window->editPage()->chart()->grab();
    pointer.drag(f.xy(Vertex::White), QPointF(0.34, 0.37));
    QVERIFY(near(f.xy(Vertex::White), QPointF(0.34, 0.37)));
}

void EditPageTest::dragSnapsToAStandard()
{
    WindowFixture f;
    f.show(f.window->editPage());
    ChartPointer pointer(f.window->editPage());
    pointer.drag(f.xy(Vertex::Red), QPointF(0.638, 0.331));
    QCOMPARE(f.xy(Vertex::Red).x(), 0.64);
    QCOMPARE(f.xy(Vertex::Red).y(), 0.33);
    QTest::mouseClick(f.window->panel()->editor()->snap(), Qt::LeftButton);
    pointer.drag(f.xy(Vertex::Red), QPointF(0.634, 0.331));
    QVERIFY(f.xy(Vertex::Red).x() != 0.64);
}

void EditPageTest::snapReachesAsFarOnBothDiagrams_data()
{
    QTest::addColumn<bool>("uv");
    QTest::addColumn<int>("vertex");
    for (const bool uv : {false, true}) {
        for (const Vertex vertex : {Vertex::Red, Vertex::Green, Vertex::Blue}) {
            QTest::addRow("%s%d", uv ? "u'v' " : "xy ", int(vertex)) << uv << int(vertex);
        }
    }
}

void EditPageTest::snapReachesAsFarOnBothDiagrams()
{
    QFETCH(bool, uv);
    QFETCH(int, vertex);
    WindowFixture f;
    DisplayDescription description = f.document().description();
    description.original = QStringLiteral("Rec.709"); // that of the sample is near
    f.window->setDescription(description, QString());
    f.show(page(f, uv));
    const QPointF standard = xyOf(targetAt(Model::rec2020().getTargets(), Vertex(vertex)));
    QWidget *viewport = page(f, uv)->chart()->view()->viewport();
    const QPoint middle = page(f, uv)->viewportPosition(standard);
    // From the outside inwards, as what has snapped leaves the pointer where it is.
    for (const int pixels : {12, 5}) {
        const QPointF from = f.xy(Vertex(vertex));
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, page(f, uv)->viewportPosition(from));
        const QPoint inwards = page(f, uv)->viewportPosition(QPointF(0.3127, 0.329)) - middle;
        const QPointF direction = QPointF(inwards) / std::hypot(inwards.x(), inwards.y());
        const QPoint aim = middle + (direction * pixels).toPoint();
        QMouseEvent move(
            QEvent::MouseMove, aim, viewport->mapToGlobal(aim), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, aim);
        QCOMPARE(near(f.xy(Vertex(vertex)), standard, 1e-9), pixels == 5);
    }
}

void EditPageTest::everySwitchChangesTheDiagram_data()
{
    QTest::addColumn<bool>("uv");
    QTest::newRow("xy") << false;
    QTest::newRow("u'v'") << true;
}

void EditPageTest::everySwitchChangesTheDiagram()
{
    QFETCH(bool, uv);
    WindowFixture f;
    f.window->setDescription(withEverything(f.document().description()), QString());
    f.window->resize(1800, 700); // the key has one line, and the diagram its size, whatever is shown
    f.show(page(f, uv));
    const QList<QCheckBox *> switches = page(f, uv)->findChildren<QCheckBox *>();
    QCOMPARE(switches.size(), 11);
    const auto picture = [&] { return page(f, uv)->chart()->view()->grab().toImage(); };
    const auto key = [&] { return page(f, uv)->key()->entries().size(); };
    const QImage before = picture();
    const auto entries = key();
    for (int index = 0; index < switches.size(); ++index) {
        const QString name = switches.at(index)->text();
        QTest::keyClick(switches.at(index), Qt::Key_Space);
        const QImage without = picture();
        QCOMPARE(without.size(), before.size());
        QVERIFY2(without != before, qPrintable(name));
        // Axes, wavelengths and Planckian locus explain themselves.
        QCOMPARE(key(), index >= 5 && index < 8 ? entries : entries - 1);
        QTest::keyClick(switches.at(index), Qt::Key_Space);
        QVERIFY2(picture() == before, qPrintable(name));
    }
}

void EditPageTest::keyNamesWhatIsShown()
{
    WindowFixture f;
    f.window->setDescription(withEverything(f.document().description()), QString());
    f.show(f.window->editPage());
    QCOMPARE(f.window->editPage()->key()->accessibleDescription(),
        QStringLiteral("Declared, Original, Measured, Target, Standards, Measured points, CCT points, CMY points"));
    // All of it can be read.
    const DiagramKey *key = f.window->editPage()->key();
    QVERIFY(key->height() >= key->heightForWidth(key->width()));
    QVERIFY(!f.window->editPage()->chart()->getLegend()->isVisible());
}

void EditPageTest::digitsStayWithinTheDiagram()
{
    for (const QSize &size : {QSize(1024, 768), QSize(1300, 900)}) {
        WindowFixture f;
        f.window->resize(size);
        for (const bool uv : {false, true}) {
            f.show(page(f, uv));
            QWidget *view = page(f, uv)->chart()->view();
            const QImage picture = view->grab(view->rect().adjusted(2, 2, -2, -2)).toImage();
            const QRgb ground = picture.pixel(0, 0);
            for (int y = 0; y < picture.height(); ++y) {
                QCOMPARE(picture.pixel(0, y), ground);
            }
            for (int x = 0; x < picture.width(); ++x) {
                QCOMPARE(picture.pixel(x, picture.height() - 1), ground);
            }
        }
    }
}

void EditPageTest::focusIsFramed()
{
    WindowFixture f;
    f.show(f.window->editPage());
    f.window->panel()->editor()->temperature()->setFocus();
    const auto frame = [&] {
        QWidget *chart = f.window->editPage()->chart();
        return chart->parentWidget()->grab().toImage().pixelColor(chart->pos() - QPoint(2, 2));
    };
    const QColor without = frame();
    QVERIFY(!f.window->editPage()->chart()->view()->hasFocus());
    pageByKey(f, Qt::Key_2);
    QVERIFY(f.window->editPage()->chart()->view()->hasFocus());
    QVERIFY(frame() != without);
    QCOMPARE(frame(), f.window->palette().color(QPalette::Highlight));
}

void EditPageTest::keysSelectAndNudge()
{
    WindowFixture f;
    QWidget *view = pageByKey(f, Qt::Key_2);
    QCOMPARE(view, static_cast<QWidget *>(f.window->editPage()->chart()->view()));
    QTest::keyClick(view, Qt::Key_G);
    QCOMPARE(int(f.window->session()->selected()), int(Vertex::Green));
    QTest::keyClick(view, Qt::Key_Right);
    QVERIFY(near(f.xy(Vertex::Green), QPointF(0.266, 0.69), 1e-9));
    QTest::keyClick(view, Qt::Key_Up, Qt::ControlModifier);
    QVERIFY(near(f.xy(Vertex::Green), QPointF(0.266, 0.70), 1e-9));
    QTest::keyClick(view, Qt::Key_Left, Qt::ShiftModifier);
    QVERIFY(near(f.xy(Vertex::Green), QPointF(0.2659, 0.70), 1e-9));
    const QPointF white = f.xy(Vertex::White);
    QTest::keyClick(view, Qt::Key_W);
    QTest::keyClick(view, Qt::Key_Down);
    QVERIFY(near(f.xy(Vertex::White), roundedXy(white - QPointF(0, 0.001)), 1e-9));
    QVERIFY(near(f.xy(Vertex::Green), QPointF(0.2659, 0.70), 1e-9));
    QCOMPARE(f.document().history()->count(), 4);
}

void EditPageTest::heldKeyIsOneStep()
{
    WindowFixture f;
    QWidget *view = pageByKey(f, Qt::Key_2);
    QTest::keyClick(view, Qt::Key_R);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier, QString(), i > 0);
        QApplication::sendEvent(view, &press);
    }
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Left, Qt::NoModifier);
    QApplication::sendEvent(view, &release);
    QVERIFY(near(f.xy(Vertex::Red), QPointF(0.675, 0.32), 1e-9));
    QCOMPARE(f.document().history()->count(), 1);
    QTest::keyClick(view, Qt::Key_Left);
    QCOMPARE(f.document().history()->count(), 2);
}

void EditPageTest::nudgeInUv()
{
    WindowFixture f;
    QWidget *view = pageByKey(f, Qt::Key_3);
    QTest::keyClick(view, Qt::Key_B);
    const Model::Target before = f.document().target()->getTargets().blue;
    QTest::keyClick(view, Qt::Key_Right);
    const Model::Target after = f.document().target()->getTargets().blue;
    QVERIFY(std::fabs(after.u - before.u - 0.001) < 1e-9);
    QVERIFY(std::fabs(after.v - before.v) < 1e-9);
}

void EditPageTest::signalsAreLogged()
{
    WindowFixture f;
    f.show(f.window->editPage());
    ChartPointer(f.window->editPage()).drag(f.xy(Vertex::Red), QPointF(0.60, 0.33));
    QCoreApplication::processEvents();
    const QString log = f.window->panel()->log()->toPlainText();
    QVERIFY(log.contains(QLatin1String("colorGamutValueChanged")));
    QVERIFY(log.contains(QLatin1String("targetInfoChanged")));
}

QTEST_MAIN(EditPageTest)
#include "editpagetest.moc"
