// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_WIDGETS_INNERVIEWTESTS_H
#define CEIECHART_TESTS_WIDGETS_INNERVIEWTESTS_H

#include <QGraphicsView>
#include <QMetaMethod>
#include <QScrollBar>
#include <QTest>

inline const QWidget *leftByTheBase = nullptr;

// In place of Qt's own, which does nothing: only so can it be seen to be called.
void QWidget::leaveEvent(QEvent *)
{
    leftByTheBase = this;
}

/*! \brief What the inner views of both generations have in common. */
template <class InnerView>
struct InnerViewTests {
    static void construction()
    {
        QWidget parent;
        const InnerView view(&parent);
        QCOMPARE(view.parentWidget(), &parent);
        QCOMPARE(view.frameShape(), QFrame::NoFrame);
        QCOMPARE(view.renderHints(), QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        QCOMPARE(view.scene(), nullptr);
        const InnerView orphan(nullptr);
        QCOMPARE(orphan.parentWidget(), nullptr);
    }

    static void metaObject(const char *className)
    {
        const QMetaObject &meta = InnerView::staticMetaObject;
        QCOMPARE(meta.className(), className);
        QCOMPARE(meta.superClass(), &QGraphicsView::staticMetaObject);
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
        const QMetaMethod slot = meta.method(meta.methodOffset());
        QCOMPARE(slot.methodSignature(), QByteArray("slot_mouseCursorChange(QCursor)"));
        QCOMPARE(slot.parameterNames(), QList<QByteArray>({"mouseCursorStyle"}));
        QCOMPARE(slot.methodType(), QMetaMethod::Slot);
        QCOMPARE(slot.access(), QMetaMethod::Public);
    }

    static void cursorUntilThePointerLeaves()
    {
        QWidget window; // which has a cursor of its own
        InnerView view(&window);
        QVERIFY(!view.testAttribute(Qt::WA_SetCursor));
        view.slot_mouseCursorChange(QCursor(Qt::OpenHandCursor));
        QVERIFY(view.testAttribute(Qt::WA_SetCursor));
        QCOMPARE(view.cursor().shape(), Qt::OpenHandCursor);
        QCOMPARE(view.viewport()->cursor().shape(), Qt::OpenHandCursor);
        QVERIFY(QMetaObject::invokeMethod(&view, "slot_mouseCursorChange", Q_ARG(QCursor, QCursor(Qt::CrossCursor))));
        QCOMPARE(view.cursor().shape(), Qt::CrossCursor);
        QEvent leave(QEvent::Leave);
        leftByTheBase = nullptr;
        QCoreApplication::sendEvent(&view, &leave);
        QCOMPARE(leftByTheBase, &view);
        QVERIFY(!view.testAttribute(Qt::WA_SetCursor));
        QCOMPARE(view.cursor().shape(), Qt::ArrowCursor);
    }

    // A picture that a host grabs before the event loop turns would otherwise contain them.
    static void scrollBarsGoAtOnce()
    {
        QGraphicsScene scene;
        scene.setSceneRect(0, 0, 672, 728);
        InnerView view(nullptr);
        view.setScene(&scene);
        view.resize(300, 200);
        view.show();
        scene.setSceneRect(0, 0, 300, 200);
        QCOMPARE(view.viewport()->size(), QSize(300, 200));
        QVERIFY(!view.horizontalScrollBar()->isVisible());
        QVERIFY(!view.verticalScrollBar()->isVisible());
    }
};

#endif // CEIECHART_TESTS_WIDGETS_INNERVIEWTESTS_H
