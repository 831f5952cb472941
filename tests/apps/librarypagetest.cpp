// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "display/valuetexts.h"
#include "editing/gamutparts.h"
#include "editing/targetsession.h"
#include "panel/signallog.h"
#include "window/librarypage.h"

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

using namespace gamutviewer;

class LibraryPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void libraryChartsShowTheDocument();
    void libraryChartsFillTheirRoom_data();
    void libraryChartsFillTheirRoom();
    void libraryChartsGetNoMeasurePoints();
    void signalsHaveNoNegativeZero();
};

void LibraryPageTest::libraryChartsShowTheDocument()
{
    WindowFixture f;
    f.show(f.window->libraryPage());
    auto *current = f.window->libraryPage()->currentChart()->view();
    auto *legacy = f.window->libraryPage()->legacyChart()->view();
    const QImage currentBefore = current->grab().toImage();
    const QImage legacyBefore = legacy->grab().toImage();
    QVERIFY(f.window->session()->setChromaticity(Vertex::Green, QPointF(0.4, 0.5)));
    QCoreApplication::processEvents();
    QVERIFY(current->grab().toImage() != currentBefore);
    QVERIFY(legacy->grab().toImage() != legacyBefore);
    // What is moved in a chart is logged, and nothing else.
    const Model::Targets before = f.document().target()->getTargets();
    const int lines = f.window->libraryPage()->log()->blockCount();
    QWidget *viewport = legacy->viewport();
    const ceiechart::DiagramGeometry geometry = ceiechart::chartGeometry(ceiechart::ChartKind::LegacyXy,
        f.window->libraryPage()->legacyChart()->imageWidth(), f.window->libraryPage()->legacyChart()->imageHeight());
    const QPoint green = legacy->mapFromScene(geometry.toPixel(QPointF(0.4, 0.5)));
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, green);
    for (int i = 1; i < 20; ++i) {
        const QPoint position = green + QPoint(i, i);
        QMouseEvent move(
            QEvent::MouseMove, position, viewport->mapToGlobal(position), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, green + QPoint(20, 20));
    QCoreApplication::processEvents();
    QVERIFY(f.window->libraryPage()->log()->blockCount() > lines);
    QVERIFY(sameTargets(f.document().target()->getTargets(), before));
}

void LibraryPageTest::libraryChartsFillTheirRoom_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(1024, 768), QSize(1280, 800), QSize(1920, 1200)}) {
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
    }
}

void LibraryPageTest::libraryChartsFillTheirRoom()
{
    QFETCH(QSize, size);
    WindowFixture f;
    f.window->resize(size);
    f.show(f.window->libraryPage());
    QCoreApplication::processEvents();
    const auto *area = f.window->libraryPage()->findChild<QScrollArea *>();
    QVERIFY(!area->horizontalScrollBar()->isVisible());
    QVERIFY(!area->verticalScrollBar()->isVisible());
    const QSize room = area->viewport()->size();
    for (const QWidget *view : {static_cast<QWidget *>(f.window->libraryPage()->currentChart()->view()),
             static_cast<QWidget *>(f.window->libraryPage()->legacyChart()->view())}) {
        const QRect place(view->mapTo(area->viewport(), QPoint()), view->size());
        QVERIFY(area->viewport()->rect().contains(place));
        QVERIFY2(view->width() > 0.9 * room.width() / 2 || view->height() > 0.8 * room.height(),
            qPrintable(QStringLiteral("%1x%2").arg(view->width()).arg(view->height())));
    }
    const SignalLog *log = f.window->libraryPage()->log();
    QVERIFY(log->viewport()->height() >= 4 * log->fontMetrics().lineSpacing());
    QVERIFY(log->height() <= 7 * log->fontMetrics().lineSpacing());
    // A chart is bare once it has another size.
    auto *view = f.window->libraryPage()->currentChart()->view();
    const QImage shown = view->grab().toImage();
    QVERIFY(f.window->session()->setChromaticity(Vertex::Green, QPointF(0.4, 0.5)));
    f.document().history()->undo();
    QCOMPARE(view->grab().toImage(), shown);
}

void LibraryPageTest::libraryChartsGetNoMeasurePoints()
{
    WindowFixture f;
    f.show(f.window->libraryPage());
    QVERIFY(!f.document().description().measurePoints.isEmpty());
    // They would be taken for u', v'.
    QVERIFY(f.window->libraryPage()->legacyChart()->getMeasureValuePoints().isEmpty());
}

void LibraryPageTest::signalsHaveNoNegativeZero()
{
    WindowFixture f;
    f.show(f.window->libraryPage());
    ColorTriangleObject target;
    TrianglePoint triangle;
    triangle.setWhitePos(QPointF(-0.00001, 0.3));
    target.setTrianglePoint(triangle);
    Q_EMIT f.window->libraryPage()->currentChart()->signal_colorGamutWhiteChanged(target);
    QCoreApplication::processEvents();
    const QString text = f.window->libraryPage()->log()->toPlainText();
    QVERIFY(text.contains(QStringLiteral("W (0.0000, 0.3000)")));
    QVERIFY(!text.contains(QStringLiteral("-0.0000")));
}

QTEST_MAIN(LibraryPageTest)
#include "librarypagetest.moc"
