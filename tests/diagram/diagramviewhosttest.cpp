// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramviewfixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QVBoxLayout>

#include <functional>
#include <memory>

using namespace diagramtests;

namespace {

//! Deletes a view in answer to a signal.
class Deleter : public QObject {
    Q_OBJECT

public:
    explicit Deleter(View *view)
        : m_view(view)
    {
    }

public Q_SLOTS:
    void run() { delete m_view.data(); }

private:
    QPointer<View> m_view;
};

} // namespace

class DiagramViewHostTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void declaredGamutAndCmyPointsAreSet();
    void readOnlyDoesNotEdit();
    void hiddenTargetIsNotEdited();
    void hostsMayReplaceTheTargetInADrag();
    void hostsMayEndADrag();
    void moveVertexIsAnEdit();
    void hidingLetsGo();
    void hidingTellsInOrder();
    void viewsWithoutHandsPassTheFocusOn_data();
    void viewsWithoutHandsPassTheFocusOn();
    void slotsMayDeleteTheView_data();
    void slotsMayDeleteTheView();
    void slotsMayTakeTheTargetAway_data();
    void slotsMayTakeTheTargetAway();
    void losingTheTargetEndsTheDrag_data();
    void losingTheTargetEndsTheDrag();
    void contentMayBeReplacedInADrag();
    void numbersThatAreNoVertexAreIgnored();
};

void DiagramViewHostTest::readOnlyDoesNotEdit()
{
    View view;
    view.setSelectedVertex(GamutVertex::Red);
    view.setReadOnly(true);
    QVERIFY(!view.selectedVertex());
    QVERIFY(view.d->overlay.handles.isEmpty());
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    const QPointF start = view.at(GamutVertex::Red);
    view.press(start);
    view.drag(start + QPointF(-20, -20));
    view.release(start + QPointF(-20, -20));
    QVERIFY(!view.moveVertex(GamutVertex::Red, QPointF(0.6, 0.33)));
    view.setSelectedVertex(GamutVertex::Red);
    QVERIFY(!view.selectedVertex());
    QTest::keyClick(&view, Qt::Key_R);
    QVERIFY(!view.selectedVertex());
    QCOMPARE(edited.count(), 0);
}

void DiagramViewHostTest::hiddenTargetIsNotEdited()
{
    View view;
    view.setSelectedVertex(GamutVertex::Red);
    view.setLayerShown(DiagramLayer::Targets, false);
    QVERIFY(!view.selectedVertex());
    QVERIFY(view.d->overlay.handles.isEmpty());
}

void DiagramViewHostTest::hostsMayReplaceTheTargetInADrag()
{
    View view;
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    // As a host does that gives every edited gamut a name.
    connect(&view, &DiagramView::targetEdited, &view, [&](const Model::ColorGamut &gamut) {
        if (gamut.colorGamutName() != "edited") {
            view.setTarget(Model::ColorGamut("edited", gamut.getTargets()));
        }
    });
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    view.drag(start + QPointF(30, -20));
    QCOMPARE(view.gamut(GamutRole::Target)->colorGamutName(), std::string("edited"));
    QVERIFY(view.isEditing());
    QVERIFY(length(view.at(GamutVertex::Green) - start - QPointF(30, -20)) < 0.2);
    QTest::keyClick(&view, Qt::Key_Escape);
    QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    view.release(start);
}

void DiagramViewHostTest::hostsMayEndADrag()
{
    View view;
    connect(&view, &DiagramView::targetEdited, &view, [&] { view.clearGamuts(GamutRole::Target); });
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    QVERIFY(!view.gamut(GamutRole::Target));
    view.drag(start + QPointF(30, -10));
    view.release(start + QPointF(30, -10));
    QVERIFY(!view.isEditing());

    View other;
    connect(&other, &DiagramView::editingStarted, &other, [&] { other.cancelEditing(); });
    const QPointF xy = other.xy(GamutVertex::Green);
    other.press(start);
    other.drag(start + QPointF(20, -10));
    other.release(start + QPointF(20, -10));
    QCOMPARE(other.xy(GamutVertex::Green), xy);
}

void DiagramViewHostTest::moveVertexIsAnEdit()
{
    View view;
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    QVERIFY(view.moveVertex(GamutVertex::Red, QPointF(0.65, 0.32)));
    QCOMPARE(view.xy(GamutVertex::Red), QPointF(0.65, 0.32));
    QCOMPARE(edited.count(), 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY(!view.moveVertex(GamutVertex::Red, QPointF(0.65, 0.32)));
    QCOMPARE(edited.count(), 1);
}

void DiagramViewHostTest::hidingLetsGo()
{
    View view;
    view.setZoomFactor(3.0);
    view.press(freeGround(view));
    view.hide();
    view.show();
    view.paintAll();
    view.showTarget();
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(10, 10));
    QVERIFY(view.isEditing());
    view.release(start + QPointF(10, 10));
}

void DiagramViewHostTest::hidingTellsInOrder()
{
    View view;
    QStringList told;
    connect(&view, &DiagramView::targetEdited, &view, [&] { told.append(QStringLiteral("edited")); });
    connect(&view, &DiagramView::gamutsChanged, &view,
        [&] { told.append(QString::fromStdString(view.gamut(GamutRole::Target)->colorGamutName())); });
    connect(&view, &DiagramView::editingCanceled, &view, [&] { told.append(QStringLiteral("canceled")); });
    connect(&view, &DiagramView::editingFinished, &view, [&] { told.append(QStringLiteral("finished")); });
    connect(&view, &DiagramView::hoverEnded, &view, [&] { told.append(QStringLiteral("left")); });
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    const QPointF start = view.at(GamutVertex::Green);
    for (const bool setsAnother : {false, true}) {
        view.show();
        view.press(start);
        view.drag(start + QPointF(15, 15));
        told.clear();
        view.hide();
        QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
        QVERIFY(!view.isEditing());
        QVERIFY(told.isEmpty());
        if (setsAnother) {
            // What is told later must not come first.
            view.setTarget(Model::dciP3D65());
            QCOMPARE(told.size(), 6);
            QCOMPARE(told.takeLast(), QStringLiteral("DCI-P3(D65)"));
            told[1] = QStringLiteral("Rec.709"); // it already has the other when it is told of the first change
        }
        view.paintAll();
        QCOMPARE(told,
            QStringList({QStringLiteral("edited"), QStringLiteral("Rec.709"), QStringLiteral("canceled"),
                QStringLiteral("finished"), QStringLiteral("left")}));
    }
    // A key that is held is no edit of a hidden view either.
    view.show();
    view.setSelectedVertex(GamutVertex::Green);
    QTest::keyPress(&view, Qt::Key_Right);
    told.clear();
    view.hide();
    QVERIFY(told.isEmpty());
    view.paintAll();
    QCOMPARE(told, QStringList({QStringLiteral("finished")}));
}

void DiagramViewHostTest::viewsWithoutHandsPassTheFocusOn_data()
{
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("hidden") << true;
    QTest::newRow("disabled") << false;
}

void DiagramViewHostTest::viewsWithoutHandsPassTheFocusOn()
{
    QFETCH(bool, isHidden);
    QWidget window;
    auto *view = new DiagramView(&window);
    auto *next = new QLineEdit(&window);
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(view);
    layout->addWidget(next);
    view->setTarget(Model::rec709());
    window.resize(400, 500);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    view->setFocus();
    view->setSelectedVertex(GamutVertex::Green);
    if (isHidden) {
        view->hide();
    } else {
        view->setEnabled(false);
    }
    QVERIFY(next->hasFocus());
    QCOMPARE(*view->selectedVertex(), GamutVertex::Green);
}

void DiagramViewHostTest::slotsMayDeleteTheView_data()
{
    QTest::addColumn<QByteArray>("signal");
    for (const char *signal :
        {SIGNAL(editingStarted()), SIGNAL(targetEdited(Model::ColorGamut)), SIGNAL(gamutsChanged()),
            SIGNAL(editingFinished()), SIGNAL(editingCanceled()), SIGNAL(editRefused(QString)),
            SIGNAL(hovered(QPointF)), SIGNAL(hoverEnded()), SIGNAL(selectedVertexChanged()), SIGNAL(viewChanged())}) {
        QTest::newRow(signal + 1) << QByteArray(signal);
    }
}

void DiagramViewHostTest::slotsMayDeleteTheView()
{
    QFETCH(QByteArray, signal);
    using Hands = std::function<void(View &, const QPointer<View> &)>;
    const auto drag = [](View &view, const QPointer<View> &alive, bool cancels) {
        const QPointF start = view.at(GamutVertex::Green);
        view.press(start);
        // The third step is refused: it is no chromaticity.
        for (const QPointF &way : {QPointF(15, 10), QPointF(20, 15), QPointF(-900, 900)}) {
            if (alive) {
                view.drag(start + way);
            }
        }
        if (alive && cancels) {
            QTest::keyClick(&view, Qt::Key_Escape);
        }
        if (alive) {
            view.release(start);
        }
    };
    const auto hide = [](View &view, const QPointer<View> &alive) {
        if (alive) {
            view.hide();
        }
        if (alive) {
            view.paintAll();
        }
    };
    const Hands all[] = {
        [&](View &view, const QPointer<View> &alive) { drag(view, alive, false); },
        [&](View &view, const QPointer<View> &alive) { drag(view, alive, true); },
        [](View &view, const QPointer<View> &alive) {
            view.setSelectedVertex(GamutVertex::Green);
            for (const int key : {Qt::Key_Right, Qt::Key_R, Qt::Key_Tab}) {
                if (alive) {
                    QTest::keyClick(&view, Qt::Key(key));
                }
            }
        },
        [](View &view, const QPointer<View> &alive) {
            view.setZoomFactor(40.0);
            if (alive) {
                view.setSelectedVertex(GamutVertex::Blue);
            }
            if (alive) {
                QTest::keyClick(&view, Qt::Key_Left);
            }
        },
        [](View &view, const QPointer<View> &) { view.moveVertex(GamutVertex::Red, QPointF(0.65, 0.32)); },
        [](View &view, const QPointer<View> &) { view.moveVertex(GamutVertex::Red, QPointF(2.0, 0.32)); },
        [](View &view, const QPointer<View> &alive) {
            view.hover(view.viewport().plot().center());
            if (alive) {
                view.wheel(view.viewport().plot().center(), QPoint(0, 120));
            }
            if (alive) {
                QEvent leave(QEvent::Leave);
                QCoreApplication::sendEvent(&view, &leave);
            }
        },
        [&](View &view, const QPointer<View> &alive) {
            auto rules = std::make_shared<StandardTargetRules>();
            rules->setLocksPrimaries(true);
            view.setRules(rules);
            drag(view, alive, false);
        },
        [](View &view, const QPointer<View> &alive) {
            const QPointF start = view.at(GamutVertex::Green);
            view.press(start);
            if (alive) {
                view.drag(start + QPointF(15, 10));
            }
            if (alive) {
                view.clearGamuts(GamutRole::Target);
            }
        },
        [&](View &view, const QPointer<View> &alive) {
            // Within what Qt does to hide a view, too, which goes on with it afterwards.
            const QPointF start = view.at(GamutVertex::Green);
            view.press(start);
            if (alive) {
                view.drag(start + QPointF(15, 10));
            }
            hide(view, alive);
        },
        [&](View &view, const QPointer<View> &alive) {
            QApplication::setActiveWindow(&view);
            view.setFocus();
            view.setSelectedVertex(GamutVertex::Green);
            if (alive) {
                QTest::keyPress(&view, Qt::Key_Right);
            }
            hide(view, alive);
        },
        [&](View &view, const QPointer<View> &alive) {
            view.hover(view.viewport().plot().center());
            hide(view, alive);
        },
        [&](View &view, const QPointer<View> &alive) {
            QApplication::setActiveWindow(&view);
            view.setFocus();
            view.setSelectedVertex(GamutVertex::Green);
            if (alive) {
                QTest::keyPress(&view, Qt::Key_Right);
            }
            if (alive) {
                view.setEnabled(false);
            }
            if (alive) {
                view.paintAll();
            }
        },
    };
    int deletions = 0;
    for (const Hands &hands : all) {
        auto *view = new View;
        const QPointer<View> alive(view);
        Deleter deleter(view);
        QVERIFY(QObject::connect(view, signal.constData(), &deleter, SLOT(run())));
        hands(*view, alive);
        deletions += alive ? 0 : 1;
        delete alive.data();
    }
    QVERIFY(deletions > 0);
}

void DiagramViewHostTest::slotsMayTakeTheTargetAway_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("cleared") << false;
    QTest::newRow("read-only") << true;
}

void DiagramViewHostTest::slotsMayTakeTheTargetAway()
{
    QFETCH(bool, readOnly);
    using Connector = std::function<void(View &, const std::function<void()> &)>;
    const Connector connectors[] = {
        [](View &view, const std::function<void()> &f) { connect(&view, &DiagramView::editingStarted, &view, f); },
        [](View &view, const std::function<void()> &f) { connect(&view, &DiagramView::targetEdited, &view, f); },
        [](View &view, const std::function<void()> &f) { connect(&view, &DiagramView::editRefused, &view, f); },
        [](View &view, const std::function<void()> &f) {
            connect(&view, &DiagramView::selectedVertexChanged, &view, f);
        },
    };
    for (const bool locks : {false, true}) {
        for (const Connector &connector : connectors) {
            for (int hands = 0; hands < 4; ++hands) {
                View view;
                if (locks) {
                    auto rules = std::make_shared<StandardTargetRules>();
                    rules->setLocksPrimaries(true);
                    view.setRules(rules);
                }
                if (hands == 1) {
                    view.setSelectedVertex(GamutVertex::Green);
                }
                QSignalSpy started(&view, &DiagramView::editingStarted);
                QSignalSpy finished(&view, &DiagramView::editingFinished);
                const QPointF start = view.at(GamutVertex::Green);
                connector(view, [&view, readOnly] {
                    if (readOnly) {
                        view.setReadOnly(true);
                    } else {
                        view.clearGamuts(GamutRole::Target);
                    }
                });
                if (hands == 0) {
                    view.press(start);
                    view.drag(start + QPointF(20, 10));
                    view.drag(start + QPointF(-900, 900));
                    view.release(start);
                } else if (hands == 1) {
                    QTest::keyClick(&view, Qt::Key_Right);
                } else {
                    view.moveVertex(GamutVertex::Green, hands == 2 ? QPointF(0.31, 0.62) : QPointF(3.0, 0.6));
                }
                QVERIFY(!view.isEditing());
                QCOMPARE(started.count(), finished.count());
            }
        }
    }
}

void DiagramViewHostTest::losingTheTargetEndsTheDrag_data()
{
    QTest::addColumn<bool>("isCleared");
    QTest::newRow("cleared") << true;
    QTest::newRow("switched off") << false;
}

void DiagramViewHostTest::losingTheTargetEndsTheDrag()
{
    QFETCH(bool, isCleared);
    View view;
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    QSignalSpy canceled(&view, &DiagramView::editingCanceled);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    if (isCleared) {
        view.clearGamuts(GamutRole::Target);
    } else {
        view.setLayerShown(DiagramLayer::Targets, false);
        QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    }
    QCOMPARE(canceled.count(), 1);
    QCOMPARE(finished.count(), 1);
    view.release(start);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewHostTest::contentMayBeReplacedInADrag()
{
    for (const bool asContent : {false, true}) {
        View view;
        const QPointF start = view.at(GamutVertex::Green);
        view.press(start);
        view.drag(start + QPointF(20, -10));
        DiagramContent content = view.content();
        for (DiagramGamut &gamut : content.gamuts) {
            if (gamut.role == GamutRole::Target) {
                gamut.gamut = Model::dciP3D65();
            }
        }
        if (asContent) {
            view.setContent(content);
        } else {
            view.setGamuts(content.gamuts);
        }
        view.drag(start + QPointF(25, -15));
        QCOMPARE(view.xy(GamutVertex::Red), xyOf(Model::dciP3D65().getTargets().red));
        QVERIFY(length(view.at(GamutVertex::Green) - start - QPointF(25, -15)) < 0.2);
        view.release(start);
    }
}

void DiagramViewHostTest::declaredGamutAndCmyPointsAreSet()
{
    DiagramView view;
    view.setOriginal(Model::rec2020());
    view.setDeclared(Model::rec709());
    QVERIFY(view.gamut(GamutRole::Declared).has_value());
    QVERIFY(!view.gamut(GamutRole::Measured).has_value());
    QCOMPARE(view.gamut(GamutRole::Declared)->colorGamutName(), Model::rec709().colorGamutName());
    QCOMPARE(view.gamut(GamutRole::Original)->colorGamutName(), Model::rec2020().colorGamutName());
    view.setDeclared(Model::dciP3D65());
    QCOMPARE(view.gamut(GamutRole::Declared)->colorGamutName(), Model::dciP3D65().colorGamutName());
    QCOMPARE(view.gamuts().size(), 2);

    view.setCmyPoints({{QPointF(0.22, 0.33), QStringLiteral("cyan"), QColor()}});
    QCOMPARE(view.content().cmyPoints.size(), 1);
    QCOMPARE(view.content().cmyPoints.first().name, QStringLiteral("cyan"));
    QVERIFY(view.content().measurePoints.isEmpty());
    QVERIFY(view.content().colorTemperaturePoints.isEmpty());
}

void DiagramViewHostTest::numbersThatAreNoVertexAreIgnored()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    for (const int number : {-1, 4, 1000}) {
        view.setSelectedVertex(GamutVertex(number));
        QVERIFY(view.selectedVertex() == GamutVertex::Green);
        QVERIFY(!view.moveVertex(GamutVertex(number), QPointF(0.3, 0.33)));
    }
}

QTEST_MAIN(DiagramViewHostTest)
#include "diagramviewhosttest.moc"
