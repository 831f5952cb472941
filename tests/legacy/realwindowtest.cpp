// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

#include <cmath>

namespace {

constexpr int patience = 60000; // milliseconds for a line that has to come

QPointF pointOf(const QString &line)
{
    return QPointF(line.section(QLatin1Char(' '), 1, 1).toDouble(), line.section(QLatin1Char(' '), 2, 2).toDouble());
}

} // namespace

// A window on an X server with a pointer that a program moves: what no event made by hand shows.
class RealWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void dragInsideTheFenceMovesRedAndReportsIt();
    void dragOutOfTheFenceMovesNothing();
    void cleanupTestCase();

private:
    bool lineComes(QProcess &process, const QString &start, QString &line);
    QStringList linesUntil(const QString &start);
    bool pointer(const QStringList &arguments);
    bool pointerTo(const QPoint &pixel);

    QPoint pixelOf(const QPointF &chroma) const;
    QPointF chromaOf(const QPoint &pixel) const;

    QProcess m_server;
    QProcess m_host;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QStringList m_pending;
    QPoint m_corner; // of the scene, on the screen
};

// The next line that starts so; those before it are passed over.
bool RealWindowTest::lineComes(QProcess &process, const QString &start, QString &line)
{
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        while (process.canReadLine()) {
            line = QString::fromLocal8Bit(process.readLine()).trimmed();
            if (&process == &m_host) {
                m_pending << line;
            }
            if (line.startsWith(start)) {
                return true;
            }
        }
        const int rest = patience - static_cast<int>(timer.elapsed());
        if (rest <= 0 || !process.waitForReadyRead(rest)) {
            return false;
        }
    }
}

// What the host wrote up to and with a line that starts so; nothing when it does not come.
QStringList RealWindowTest::linesUntil(const QString &start)
{
    m_pending.clear();
    QString line;
    return lineComes(m_host, start, line) ? m_pending : QStringList();
}

bool RealWindowTest::pointer(const QStringList &arguments)
{
    QProcess tool;
    tool.setProcessEnvironment(m_environment);
    tool.start(QStringLiteral("xdotool"), arguments);
    return tool.waitForFinished(patience) && tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0;
}

bool RealWindowTest::pointerTo(const QPoint &pixel)
{
    return pointer({QStringLiteral("mousemove"), QString::number(pixel.x()), QString::number(pixel.y())});
}

// The chart shows 0.84 × 0.94 from 5 % to 95 % of 600 pixels.
QPoint RealWindowTest::pixelOf(const QPointF &chroma) const
{
    return m_corner
        + QPoint(static_cast<int>(30.5 + chroma.x() * 540.0 / 0.84),
            static_cast<int>(30.5 + (0.94 - chroma.y()) * 540.0 / 0.94));
}

QPointF RealWindowTest::chromaOf(const QPoint &pixel) const
{
    const QPoint position = pixel - m_corner;
    return QPointF((position.x() - 30.5) * 0.84 / 540.0, 0.94 - (position.y() - 30.5) * 0.94 / 540.0);
}

void RealWindowTest::initTestCase()
{
    m_server.start(QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
            QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    QVERIFY2(m_server.waitForStarted(patience), "Xvfb is needed");
    QString display;
    QVERIFY2(lineComes(m_server, QString(), display), m_server.readAllStandardError().constData());

    m_environment.insert(QStringLiteral("DISPLAY"), QLatin1Char(':') + display);
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    for (const char *name : {"XAUTHORITY", "WAYLAND_DISPLAY", "QT_SCALE_FACTOR", "QT_AUTO_SCREEN_SCALE_FACTOR"}) {
        m_environment.remove(QLatin1String(name));
    }
    QVERIFY2(
        pointer({QStringLiteral("mousemove"), QStringLiteral("1200"), QStringLiteral("1000")}), "xdotool is needed");

    m_host.setProcessEnvironment(m_environment);
    m_host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_host.start(QStringLiteral(REAL_WINDOW_HOST), QStringList());
    QString corner;
    QString opposite;
    QVERIFY(lineComes(m_host, QStringLiteral("corner "), corner));
    QVERIFY(lineComes(m_host, QStringLiteral("corner "), opposite));
    m_corner = pointOf(corner).toPoint();
    QCOMPARE(pointOf(opposite).toPoint() - m_corner, QPoint(600, 600));
}

void RealWindowTest::dragInsideTheFenceMovesRedAndReportsIt()
{
    QVERIFY(pointerTo(pixelOf(QPointF(0.64, 0.33))));
    QVERIFY(pointer({QStringLiteral("mousedown"), QStringLiteral("1")}));
    QVERIFY(!linesUntil(QStringLiteral("value ")).isEmpty());

    const QPoint goal = pixelOf(QPointF(0.55, 0.3));
    for (const QPointF &chroma : {QPointF(0.62, 0.32), QPointF(0.6, 0.31), QPointF(0.57, 0.3)}) {
        QVERIFY(pointerTo(pixelOf(chroma)));
    }
    QVERIFY(pointerTo(goal));
    QVERIFY(pointer({QStringLiteral("mouseup"), QStringLiteral("1")}));

    QStringList lines = linesUntil(QStringLiteral("info "));
    QVERIFY(!lines.isEmpty());
    const QPointF red = pointOf(lines.last());
    const QPointF expected = chromaOf(goal);
    QVERIFY2(std::hypot(red.x() - expected.x(), red.y() - expected.y()) < 1e-6, qPrintable(lines.last()));
    const QStringList values = lines.filter(QStringLiteral("value "));
    QVERIFY(!values.isEmpty());
    QCOMPARE(values.last().mid(6), lines.last().mid(5)); // the report tells what the last move told
    QCOMPARE(linesUntil(QStringLiteral("pointer ")), QStringList(QStringLiteral("pointer 2"))); // the cross
}

void RealWindowTest::dragOutOfTheFenceMovesNothing()
{
    // Where red now is, to the pixel: the press leaves it there.
    QVERIFY(pointer({QStringLiteral("mousedown"), QStringLiteral("1")}));
    const QStringList pressed = linesUntil(QStringLiteral("value "));
    QVERIFY(!pressed.isEmpty());
    const QPointF expected = chromaOf(pixelOf(QPointF(0.55, 0.3)));
    const QPointF red = pointOf(pressed.last());
    QVERIFY2(std::hypot(red.x() - expected.x(), red.y() - expected.y()) < 1e-6, qPrintable(pressed.last()));

    for (const QPointF &chroma : {QPointF(0.6, 0.6), QPointF(0.3, 0.6), QPointF(0.15, 0.08)}) {
        QVERIFY(pointerTo(pixelOf(chroma)));
    }
    QVERIFY(pointer({QStringLiteral("mouseup"), QStringLiteral("1")}));
    const QStringList lines = linesUntil(QStringLiteral("info "));
    QVERIFY(!lines.isEmpty());
    QVERIFY2(lines.filter(QStringLiteral("value ")).isEmpty(), qPrintable(lines.join(QLatin1Char('\n'))));
    QCOMPARE(lines.last().mid(5), pressed.last().mid(6));
}

void RealWindowTest::cleanupTestCase()
{
    if (m_host.state() == QProcess::Running) {
        m_host.closeWriteChannel();
        QVERIFY(m_host.waitForFinished(patience));
        QCOMPARE(m_host.exitStatus(), QProcess::NormalExit);
    }
    m_server.terminate();
    m_server.waitForFinished(patience);
}

QTEST_GUILESS_MAIN(RealWindowTest)
#include "realwindowtest.moc"
