// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/chartenums.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>

#include <reference/metatypefacts.h>

#include <QTest>

// The library declares and registers no meta-type, so that a host can do it for itself.
Q_DECLARE_METATYPE(PointF)
Q_DECLARE_METATYPE(TrianglePoint)
Q_DECLARE_METATYPE(ColorTriangleObject)
Q_DECLARE_METATYPE(TargetInfoChangedEventArgs)
Q_DECLARE_METATYPE(TriangleObjecIinitializedEventArgs)
Q_DECLARE_METATYPE(baseCommon::LEDColorType)
Q_DECLARE_METATYPE(NewCEIE::TabSelectedType)
Q_DECLARE_METATYPE(NewCEIE::ColorArea)
Q_DECLARE_METATYPE(NewCEIE::MouseCursorStyle)
Q_DECLARE_METATYPE(TabSelectedType)
Q_DECLARE_METATYPE(ColorArea)
Q_DECLARE_METATYPE(MouseCursorStyle)

class Producer : public QObject {
    Q_OBJECT

Q_SIGNALS:
    void changed(TargetInfoChangedEventArgs args);
};

class HostMetaTypesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void libraryRegistersNothing_data();
    void libraryRegistersNothing();
    void hostRegistersAndQueues();
};

void HostMetaTypesTest::libraryRegistersNothing_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const char *type :
        {"PointF", "TrianglePoint", "ColorTriangleObject", "QList<ColorTriangleObject>", "TargetInfoChangedEventArgs",
            "TriangleObjecIinitializedEventArgs", "baseCommon::LEDColorType", "NewCEIE::TabSelectedType",
            "NewCEIE::ColorArea", "NewCEIE::MouseCursorStyle", "TabSelectedType", "ColorArea", "MouseCursorStyle"}) {
        QTest::newRow(type) << QByteArray(type);
    }
}

void HostMetaTypesTest::libraryRegistersNothing()
{
    QFETCH(QByteArray, type);
    const TargetInfoChangedEventArgs changed;
    const TriangleObjecIinitializedEventArgs initialized;
    Q_UNUSED(changed)
    Q_UNUSED(initialized)
    QVERIFY(!reference::isRegistered(type.constData()));
}

void HostMetaTypesTest::hostRegistersAndQueues()
{
    qRegisterMetaType<TargetInfoChangedEventArgs>();

    Producer producer;
    TargetInfoChangedEventArgs received;
    int count = 0;
    connect(
        &producer, &Producer::changed, this,
        [&](const TargetInfoChangedEventArgs &args) {
            received = args;
            ++count;
        },
        Qt::QueuedConnection);

    TargetInfoChangedEventArgs sent(&producer);
    sent.setColourTemperature(6503.0);
    sent.setIsReasonableData(true);
    Q_EMIT producer.changed(sent);
    QCOMPARE(count, 0);
    QCoreApplication::processEvents();
    QCOMPARE(count, 1);
    QVERIFY(received.colourTemperature() == 6503.0);
    QCOMPARE(received.isReasonableData(), true);
}

QTEST_GUILESS_MAIN(HostMetaTypesTest)
#include "hostmetatypestest.moc"
