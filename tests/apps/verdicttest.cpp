// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramfixture.h"

#include "editing/targetsession.h"
#include "panel/sidepanel.h"
#include "panel/verdict.h"

#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include <cmath>

using namespace gamutviewer;
using namespace diagramfixture;

class VerdictTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void targetIsMovedInside();
    void targetIsMovedInsideOfTheMeasuredGamut();
    void groundsArePointedOut();
    void verdictKeepsItsHeight();
    void tolerancesFollowADrag();
    void groundsFollowThePalette();
};

void VerdictTest::groundsFollowThePalette()
{
    WindowFixture f;
    const QPalette former = QApplication::palette();
    for (const auto &[ground, text] :
        {std::pair(QColor(45, 45, 48), QColor(Qt::white)), std::pair(QColor(239, 239, 239), QColor(Qt::black))}) {
        QPalette palette = former;
        palette.setColor(QPalette::Window, ground);
        palette.setColor(QPalette::Base, ground.darker(110));
        palette.setColor(QPalette::Text, text);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        const QListWidget *lines = f.window->panel()->verdict()->lines();
        QCOMPARE(lines->viewport()->grab().toImage().pixelColor(0, 0), ground);
        QCOMPARE(lines->palette().color(QPalette::Text), text);
    }
    QApplication::setPalette(former);
}

void VerdictTest::targetIsMovedInside()
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

void VerdictTest::targetIsMovedInsideOfTheMeasuredGamut()
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

void VerdictTest::groundsArePointedOut()
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

void VerdictTest::verdictKeepsItsHeight()
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

void VerdictTest::tolerancesFollowADrag()
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

QTEST_MAIN(VerdictTest)
#include "verdicttest.moc"
