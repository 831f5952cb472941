// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramviewfixture.h"

#include <QAccessible>
#include <QRegularExpression>
#include <cmath>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>

using namespace diagramtests;

namespace {

int warnings = 0;

void countWarning(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++warnings;
}

} // namespace

class DiagramViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void propertiesNotify_data();
    void propertiesNotify();
    void settingsThatStayTellNothing();
    void badSettingsAreIgnored();
    void unknownChromaticitiesAreNotShown_data();
    void unknownChromaticitiesAreNotShown();
    void verticesWithoutAPlaceHaveNoHandle();
    void rulesCannotMakeTheTargetUnknown();
    void recordsGoInAndComeOut();
    void layersAreSwitched();
    void invisibleTargetsStayInvisible();
    void equalGamutsTellNothing();
};

void DiagramViewTest::propertiesNotify_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("diagram") << QByteArray("diagram") << QVariant::fromValue(DiagramView::Cie1960);
    QTest::newRow("layers") << QByteArray("layers") << QVariant::fromValue(ShownLayers(DiagramLayer::Locus));
    QTest::newRow("horseshoeColors") << QByteArray("horseshoeColors") << QVariant::fromValue(HorseshoeColors::None);
    QTest::newRow("zoomFactor") << QByteArray("zoomFactor") << QVariant(4.0);
    QTest::newRow("readOnly") << QByteArray("readOnly") << QVariant(true);
    QTest::newRow("digits") << QByteArray("digits") << QVariant(6);
    QTest::newRow("readoutShown") << QByteArray("readoutShown") << QVariant(false);
    QTest::newRow("editNote") << QByteArray("editNote") << QVariant(QStringLiteral("outside"));
    QTest::newRow("centre") << QByteArray("centre") << QVariant(QPointF(0.3, 0.35));
}

void DiagramViewTest::propertiesNotify()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    View view;
    const QMetaObject *meta = view.metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name));
    QVERIFY(property.isValid());
    QVERIFY(property.hasNotifySignal());
    QSignalSpy spy(&view, property.notifySignal());
    QVERIFY(property.write(&view, value));
    QVERIFY(spy.count() >= 1);
    const QVariant now = property.read(&view);
    if (name == "centre") {
        QVERIFY(length(now.toPointF() - value.toPointF()) < 1e-9);
    } else if (name == "zoomFactor") {
        QVERIFY(std::fabs(now.toDouble() - value.toDouble()) < 1e-9);
    } else if (name == "diagram") {
        QCOMPARE(now.toInt(), value.toInt());
    } else if (name == "layers") {
        QCOMPARE(view.layers(), ShownLayers(DiagramLayer::Locus));
    } else if (name == "horseshoeColors") {
        QCOMPARE(view.horseshoeColors(), HorseshoeColors::None);
    } else {
        QCOMPARE(now, value);
    }
}

void DiagramViewTest::settingsThatStayTellNothing()
{
    View view;
    QSignalSpy diagram(&view, &DiagramView::diagramChanged);
    QSignalSpy layers(&view, &DiagramView::layersChanged);
    QSignalSpy changed(&view, &DiagramView::viewChanged);
    view.setDiagram(Model::Diagram::Cie1931);
    view.setLayers(view.layers());
    view.showAll();
    view.setZoomFactor(1.0);
    QCOMPARE(diagram.count() + layers.count() + changed.count(), 0);
}

void DiagramViewTest::badSettingsAreIgnored()
{
    View view;
    const DiagramViewport before = view.viewport();
    view.setZoomFactor(std::numeric_limits<double>::quiet_NaN());
    view.setZoomFactor(-1.0);
    view.setZoomFactor(std::numeric_limits<double>::infinity());
    view.setCentre(QPointF(std::numeric_limits<double>::quiet_NaN(), 0.3));
    QVERIFY(view.viewport() == before);
    view.setDigits(99);
    QCOMPARE(view.digits(), DiagramView::automaticDigits);
    QVERIFY(view.toImage(QSize()).isNull());
    QVERIFY(view.toImage(QSize(100, 100), 0.0).isNull());
    QVERIFY(!view.moveVertex(GamutVertex::Red, QPointF(std::numeric_limits<double>::quiet_NaN(), 0.3)));
    view.setRules(nullptr);
    QVERIFY(view.rules());
}

void DiagramViewTest::unknownChromaticitiesAreNotShown_data()
{
    QTest::addColumn<double>("unknown");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("infinite below") << -std::numeric_limits<double>::infinity();
}

void DiagramViewTest::unknownChromaticitiesAreNotShown()
{
    QFETCH(double, unknown);
    for (const GamutRole role : {GamutRole::Target, GamutRole::Original, GamutRole::Measured, GamutRole::Standard}) {
        for (const GamutVertex vertex : allGamutVertices) {
            for (const bool isX : {true, false}) {
                View view;
                warnings = 0;
                const QtMessageHandler former = qInstallMessageHandler(countWarning);
                Model::Targets targets = Model::dciP3D65().getTargets();
                Model::Target &target = targetAt(targets, vertex);
                (isX ? target.x : target.y) = unknown;
                QVector<DiagramGamut> gamuts = view.gamuts();
                gamuts.erase(std::remove_if(gamuts.begin(), gamuts.end(),
                                 [role](const DiagramGamut &gamut) { return gamut.role == role; }),
                    gamuts.end());
                gamuts.append({Model::ColorGamut("partly known", targets), role, true});
                view.setSelectedVertex(vertex);
                view.setGamuts(gamuts);
                const bool isWhite = vertex == GamutVertex::White;
                QCOMPARE(view.content().shows(view.gamuts().last()), isWhite && role != GamutRole::Target);
                QCOMPARE(view.d->overlay.handles.isEmpty(), role == GamutRole::Target);
                QCOMPARE(view.selectedVertex().has_value(), role != GamutRole::Target);
                // Every hand, all parts of the view, every text.
                view.showTarget();
                view.showWhite();
                view.hover(view.viewport().plot().center());
                QTest::keyClick(&view, Qt::Key_Right);
                QTest::keyClick(&view, Qt::Key_R);
                const QPointF start = view.at(GamutVertex::White);
                view.press(start);
                view.drag(start + QPointF(30, 20));
                QStringList texts = view.d->overlay.label;
                view.release(start + QPointF(30, 20));
                view.showAll();
                view.grab();
                QVERIFY(!view.moveVertex(vertex, QPointF(unknown, 0.3)));
                QVERIFY(std::isfinite(view.centre().x()) && std::isfinite(view.zoomFactor()));
                texts.append(view.d->overlay.readout);
                for (const DiagramLabel &label : view.d->painter->labels()) {
                    texts.append(label.text);
                }
                const std::function<void(QAccessibleInterface *)> read = [&](QAccessibleInterface *part) {
                    for (const QAccessible::Text kind : {QAccessible::Name, QAccessible::Description,
                             QAccessible::Value, QAccessible::Help, QAccessible::Accelerator}) {
                        texts.append(part->text(kind));
                    }
                    part->rect();
                    if (part->valueInterface()) {
                        QVERIFY(std::isfinite(part->valueInterface()->currentValue().toDouble()));
                    }
                    for (int i = 0; i < part->childCount(); ++i) {
                        read(part->child(i));
                    }
                };
                read(QAccessible::queryAccessibleInterface(&view));
                qInstallMessageHandler(former);
                const QString all = texts.join(QLatin1Char('|'));
                QVERIFY2(!all.contains(QRegularExpression(QStringLiteral("\\b(nan|inf)\\b"))), qPrintable(all));
                QCOMPARE(all.contains(QStringLiteral("white: not known")), isWhite && role != GamutRole::Target);
                QCOMPARE(warnings, 0);
            }
        }
    }
    View view;
    QCOMPARE(view.coordinatesText(QPointF(unknown, 0.3)), QStringLiteral("not known"));
    // Where u and v have no finite values.
    view.setDiagram(Model::Diagram::Cie1976);
    QCOMPARE(view.coordinatesText(QPointF(1.5, 0.0)), QStringLiteral("not known"));
}

// Here u and v are no numbers, though x and y are.
void DiagramViewTest::verticesWithoutAPlaceHaveNoHandle()
{
    View view;
    view.setDiagram(Model::Diagram::Cie1960);
    Model::Targets targets = Model::dciP3D65().getTargets();
    targets.green.x = 1e308;
    targets.green.y = 1e308;
    view.setTarget(Model::ColorGamut("far away", targets));
    view.setSelectedVertex(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key_Right);
    view.paintAll();
    QVERIFY(view.d->overlay.label.isEmpty());
    QCOMPARE(int(view.d->overlay.handles.size()), 3);
    // Keys zoom about what is selected, which here is nowhere.
    QTest::keyClick(&view, Qt::Key_Plus);
    QVERIFY(view.zoomFactor() > 1.0);
    // Nor does a white have a place, of ordinary primaries.
    targets = Model::dciP3D65().getTargets();
    targets.white.x = 1e308;
    targets.white.y = 1e308;
    view.setTarget(Model::ColorGamut("white far away", targets));
    view.setSelectedVertex(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key_Right);
    QVERIFY(view.moveVertex(GamutVertex::White, QPointF(0.3, 0.3)));
    view.paintAll();
    QCOMPARE(int(view.d->overlay.handles.size()), 4);
}

void DiagramViewTest::rulesCannotMakeTheTargetUnknown()
{
    View view;
    // Rules of a host that give what is no chromaticity.
    class Unknown : public StandardTargetRules {
    public:
        TargetMove move(const TargetContext &context, GamutVertex vertex, const QPointF &) const override
        {
            Model::Targets targets = context.target;
            targetAt(targets, vertex).x = std::numeric_limits<double>::quiet_NaN();
            return {targets, QString()};
        }
    };
    view.setRules(std::make_shared<Unknown>());
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(30, 20));
    view.release(start + QPointF(30, 20));
    QTest::keyClick(&view, Qt::Key_Right);
    QVERIFY(!view.moveVertex(GamutVertex::White, QPointF(0.3, 0.3)));
    QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
}

void DiagramViewTest::recordsGoInAndComeOut()
{
    View view;
    QSignalSpy spy(&view, &DiagramView::gamutsChanged);
    view.setMeasured(Model::dciP3D65());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(view.gamut(GamutRole::Measured)->colorGamutName(), std::string("DCI-P3(D65)"));
    QCOMPARE(view.gamut(GamutRole::Original)->colorGamutName(), std::string("LED wall"));
    QVERIFY(!view.gamut(GamutRole::Declared));
    view.setStandards({Model::rec709(), Model::rec2020(), Model::dciP3D65()});
    QCOMPARE(std::count_if(view.gamuts().begin(), view.gamuts().end(),
                 [](const DiagramGamut &gamut) { return gamut.role == GamutRole::Standard; }),
        3);
    view.clearGamuts(GamutRole::Standard);
    QVERIFY(!view.gamut(GamutRole::Standard));
    QVERIFY(view.gamut(GamutRole::Target));
    view.setTrail({QPointF(0.3, 0.3), QPointF(0.31, 0.3)});
    QCOMPARE(view.content().trail.size(), 2);
    view.setRings({DiagramRings{QPointF(0.3127, 0.329), {0.002}}});
    QCOMPARE(view.content().rings.size(), 1);
    view.setMeasurePoints({DiagramMark{QPointF(0.3, 0.3), QStringLiteral("1"), QColor()}});
    QCOMPARE(view.content().measurePoints.size(), 1);
}

void DiagramViewTest::layersAreSwitched()
{
    View view;
    const QImage before = view.grab().toImage();
    QVERIFY(view.isLayerShown(DiagramLayer::Colors));
    view.setLayerShown(DiagramLayer::Colors, false);
    QVERIFY(!view.isLayerShown(DiagramLayer::Colors));
    QVERIFY(view.isLayerShown(DiagramLayer::Locus));
    QVERIFY(view.grab().toImage() != before);
    view.setLayerShown(DiagramLayer::Colors, true);
    QCOMPARE(view.grab().toImage(), before);
}

void DiagramViewTest::invisibleTargetsStayInvisible()
{
    View view;
    DiagramContent content = view.content();
    for (DiagramGamut &gamut : content.gamuts) {
        gamut.visible = gamut.role != GamutRole::Target;
    }
    view.setContent(content);
    view.setTarget(Model::dciP3D65());
    QVERIFY(!view.content().find(GamutRole::Target)->visible);
    QCOMPARE(view.gamut(GamutRole::Target)->colorGamutName(), Model::dciP3D65().colorGamutName());
    QVERIFY(!view.moveVertex(GamutVertex::Red, QPointF(0.65, 0.32)));
}

void DiagramViewTest::equalGamutsTellNothing()
{
    View view;
    QSignalSpy changed(&view, &DiagramView::gamutsChanged);
    view.setOriginal(wall());
    view.setStandards({Model::rec2020()});
    view.clearGamuts(GamutRole::Measured);
    QCOMPARE(changed.count(), 0);
    view.setStandards({Model::rec709()});
    view.clearGamuts(GamutRole::Original);
    QCOMPARE(changed.count(), 2);
}

QTEST_MAIN(DiagramViewTest)
#include "diagramviewtest.moc"
