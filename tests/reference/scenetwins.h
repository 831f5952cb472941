// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_SCENETWINS_H
#define CEIECHART_TESTS_REFERENCE_SCENETWINS_H

#include <reference/picturedifference.h>
#include <reference/samplegamuts.h>
#include <reference/sceneevents.h>
#include <reference/scenemodel.h>
#include <reference/scenesignallog.h>
#include <reference/scenestate.h>

#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <vector>

namespace reference {

/*!
 * \brief A scene of either generation and its model, to which the same random operations are applied. They are compared
 * after every step.
 *
 * This class contains the operations that both generations have. The subclass for a generation defines in act() how
 * often each of them is applied, and adds its own.
 */
template <class Scene, class Model>
class SceneTwins {
public:
    virtual ~SceneTwins() = default;
    Q_DISABLE_COPY(SceneTwins)

    /*! \brief Applies a random operation. Returns the difference between scene and model, empty if there is none. */
    QString step()
    {
        const bool updatesAgree = act();
        return difference(updatesAgree);
    }

    QString difference(bool compareUpdates = true);
    QStringList history() const { return m_history.mid(qMax(0, m_history.size() - 12)); }

protected:
    /*!
     * \brief Creates the twins.
     *
     * \param seed the seed of the random operations
     * \param largestPicture the side in pixels up to which pictures are rendered
     * \param makeScene a function that creates the scene from a list of gamuts
     */
    template <class MakeScene>
    SceneTwins(quint32 seed, double largestPicture, MakeScene makeScene)
        : m_random(seed)
        , m_largestPicture(largestPicture)
    {
        const QList<ColorTriangleObject> triangles = randomGamuts(m_random);
        m_scene = makeScene(triangles);
        m_model = std::make_unique<Model>(triangles);
        m_log = std::make_unique<SceneSignalLog<Scene>>(m_scene.get());
        m_model->takeSignals(); // the signals of the constructor cannot be recorded
        m_model->takeUpdate();
        note(QStringLiteral("constructed from ") + describe(triangles));
    }

    /*! \brief Applies a random operation. False if the repaints of the scene must not be compared. */
    virtual bool act() = 0;
    /*! \brief Compares the properties that only one generation has. */
    virtual void compareOwn() { }

    void note(const QString &what) { m_history << what; }
    void expect(const QString &what, const QString &actual, const QString &expected)
    {
        m_complaint += reference::difference(what, actual, expected);
    }
    void expect(const QString &what, bool actual, bool expected)
    {
        expect(what, QString::number(actual), QString::number(expected));
    }

    template <class Operation>
    void both(Operation operation)
    {
        operation(*m_scene);
        operation(*m_model);
    }

    template <class T>
    T oneOf(const std::vector<T> &choices)
    {
        return choices[static_cast<std::size_t>(m_random.bounded(static_cast<int>(choices.size())))];
    }

    /*! \brief Whether the next renderings are not too large. Each of them multiplies the stored size by the zoom. */
    bool isRenderable() const
    {
        const double growth = std::max(1.0, std::fabs(static_cast<double>(m_model->state().zoom)));
        return std::max(std::abs(m_model->imageWidth()), std::abs(m_model->imageHeight())) * growth * growth
            < m_largestPicture;
    }

    void setImageSize(int width, int height);
    void setGamuts();
    void setFlag();
    void setPoints();
    void setMode();
    void key(QEvent::Type type, int key, bool autoRepeat = false);
    void holdKey(int key, int count, bool release);
    bool handlesAreInReach() const;
    template <class PaintScene, class PaintModel>
    void paintBoth(const QString &what, int side, bool comparePictures, PaintScene paintScene, PaintModel paintModel);
    void refreshArea(bool comparePictures);
    void drawHandles();

    QRandomGenerator m_random;
    std::unique_ptr<Scene> m_scene;
    std::unique_ptr<Model> m_model;
    std::unique_ptr<SceneSignalLog<Scene>> m_log;

private:
    double m_largestPicture;
    QList<QPointF> m_temperaturePoints;
    QList<QPointF> m_otherPoints;
    QList<QColor> m_otherColors;
    bool m_isDrawCoordinate = true;
    bool m_isDrawBBRLine = true;
    bool m_isDrawWaveLength = true;
    QStringList m_history;
    QString m_complaint;
};

template <class Scene, class Model>
QString SceneTwins<Scene, Model>::difference(bool compareUpdates)
{
    expect(QStringLiteral("the signals"), m_log->takeSignals().join(QLatin1Char('\n')),
        m_model->takeSignals().join(QLatin1Char('\n')));
    const bool updated = m_log->takeUpdate();
    const bool updateExpected = m_model->takeUpdate();
    if (compareUpdates) {
        expect(QStringLiteral("the update"), updated, updateExpected);
    }
    expect(QStringLiteral("the list"), describe(m_scene->getLsColorTriangleObject()), describe(m_model->triangles()));
    expect(QStringLiteral("the temperature points"), describe(m_scene->getLsColorTempertureValuePoints()),
        describe(m_temperaturePoints));
    expect(QStringLiteral("the other points"), describe(m_scene->getOtherPoints()), describe(m_otherPoints));
    expect(QStringLiteral("the other points' colours"), m_scene->getOtherPointsColor() == m_otherColors, true);
    expect(QStringLiteral("the image size"),
        QStringLiteral("%1x%2").arg(m_scene->imageWidth()).arg(m_scene->imageHeight()),
        QStringLiteral("%1x%2").arg(m_model->imageWidth()).arg(m_model->imageHeight()));
    expect(QStringLiteral("the axes' switch"), m_scene->isDrawCoordinate(), m_isDrawCoordinate);
    expect(QStringLiteral("the Planckian locus' switch"), m_scene->isDrawBBRLine(), m_isDrawBBRLine);
    expect(QStringLiteral("the wavelengths' switch"), m_scene->isDrawWaveLength(), m_isDrawWaveLength);
    expect(QStringLiteral("the white's switch"), m_scene->isDrawColorTPoint(), m_model->isDrawColorTPoint());
    expect(QStringLiteral("mouse editing"), m_scene->getIsMouseOper(), m_model->isMouseOper());
    for (const QPointF &chroma : {QPointF(0.0, 0.0), QPointF(1.0, 1.0)}) {
        expect(QStringLiteral("the scene position of a chromaticity"), describe(m_scene->GetEllipsePoint(chroma)),
            describe(m_model->toScene(chroma)));
    }
    expect(QStringLiteral("the state"), describe(stateOf(*m_scene)), describe(m_model->state()));
    if (m_model->sceneRectangle().width() > 0 && m_model->sceneRectangle().height() > 0) {
        expect(QStringLiteral("the scene rectangle"), describe(m_scene->sceneRect().bottomRight()),
            describe(m_model->sceneRectangle().bottomRight()));
    }
    compareOwn();
    return m_complaint;
}

template <class Scene, class Model>
void SceneTwins<Scene, Model>::setImageSize(int width, int height)
{
    if (std::fabs(static_cast<double>(m_model->state().zoom)) > 2.0) {
        return;
    }
    note(QStringLiteral("image %1x%2").arg(width).arg(height));
    both([width](auto &one) { one.setImageWidth(width); });
    both([height](auto &one) { one.setImageHeight(height); });
}

template <class Scene, class Model>
void SceneTwins<Scene, Model>::setGamuts()
{
    const QList<ColorTriangleObject> triangles = randomGamuts(m_random);
    note(QStringLiteral("triangles ") + describe(triangles));
    both([&triangles](auto &one) { one.setLsColorTriangleObject(triangles); });
}

template <class Scene, class Model>
void SceneTwins<Scene, Model>::setFlag()
{
    const bool on = m_random.bounded(2) == 0;
    const int which = m_random.bounded(8);
    if (which < 3 && !isRenderable()) {
        return;
    }
    note(QStringLiteral("flag %1 := %2").arg(which).arg(on));
    switch (which) {
    case 0:
        m_isDrawCoordinate = on;
        m_scene->setIsDrawCoordinate(on);
        m_model->getBitMap();
        break;
    case 1:
        m_isDrawBBRLine = on;
        m_scene->setIsDrawBBRLine(on);
        m_model->getBitMap();
        break;
    case 2:
        m_isDrawWaveLength = on;
        m_scene->setIsDrawWaveLength(on);
        m_model->getBitMap();
        break;
    case 3:
        both([on](auto &one) { one.setDrawColorTPoint(on); });
        break;
    case 4:
        both([on](auto &one) { one.setIsMouseOper(on); });
        break;
    case 5:
        both([on](auto &one) { one.setRGBPointEnable(on); });
        break;
    default:
        both([on](auto &one) { one.setColorTempertureChecked(on); });
        break;
    }
}

template <class Scene, class Model>
void SceneTwins<Scene, Model>::setPoints()
{
    QList<QPointF> points;
    QList<QColor> colors;
    for (int i = m_random.bounded(4); i > 0; --i) {
        points << randomChroma(m_random);
        colors << QColor::fromRgb(m_random.generate());
    }
    if (m_random.bounded(2) == 0) {
        note(QStringLiteral("other points ") + describe(points));
        m_otherPoints = points;
        m_otherColors = colors;
        m_scene->setOtherPoints(points, colors);
        m_model->setOtherPoints();
    } else if (isRenderable()) {
        note(QStringLiteral("temperature points ") + describe(points));
        m_temperaturePoints = points;
        m_scene->setLsColorTempertureValuePoints(points);
        m_model->getBitMap();
    }
}

/*! \brief Sets a random mode that only the owner of a scene can set. */
template <class Scene, class Model>
void SceneTwins<Scene, Model>::setMode()
{
    const int mode = qMax(0, m_random.bounded(9) - 4);
    switch (m_random.bounded(3)) {
    case 0:
        note(QStringLiteral("edit mode %1").arg(mode % 3));
        setEditMode(*m_scene, mode % 3);
        m_model->setEditMode(mode % 3);
        break;
    case 1:
        note(QStringLiteral("function-key mode %1").arg(mode));
        setFunctionKeyMode(*m_scene, mode);
        m_model->setFunctionKeyMode(mode);
        break;
    default:
        note(QStringLiteral("SetFunctionKeyShortcuts"));
        both([](auto &one) { one.SetFunctionKeyShortcuts(); });
        break;
    }
}

template <class Scene, class Model>
void SceneTwins<Scene, Model>::key(QEvent::Type type, int key, bool autoRepeat)
{
    sendKey(*m_scene, type, key, autoRepeat);
    if (type == QEvent::KeyPress) {
        m_model->keyPress(key);
    } else {
        m_model->keyRelease(key);
    }
}

template <class Scene, class Model>
void SceneTwins<Scene, Model>::holdKey(int code, int count, bool release)
{
    note(QStringLiteral("key 0x%1, %2 times").arg(code, 0, 16).arg(count));
    for (int i = 0; i < count; ++i) {
        key(QEvent::KeyPress, code, i > 0);
    }
    if (release) {
        key(QEvent::KeyRelease, code);
    }
}

/*! \brief Whether the handles are within the range of the coordinates of a painter. */
template <class Scene, class Model>
bool SceneTwins<Scene, Model>::handlesAreInReach() const
{
    if (m_model->triangles().size() < 2) {
        return true;
    }
    const TrianglePoint &points = m_model->triangles().at(1).trianglePoint();
    const auto inReach = [this](const QPointF &chroma) {
        const QPointF p = m_model->toScene(chroma);
        return std::fabs(p.x()) < 1e4 && std::fabs(p.y()) < 1e4;
    };
    return inReach(points.redPos()) && inReach(points.greenPos()) && inReach(points.bluePos());
}

template <class Scene, class Model>
template <class PaintScene, class PaintModel>
void SceneTwins<Scene, Model>::paintBoth(
    const QString &what, int side, bool comparePictures, PaintScene paintScene, PaintModel paintModel)
{
    note(what);
    QImage actual(side, side, QImage::Format_ARGB32_Premultiplied);
    actual.fill(Qt::darkCyan);
    QImage expected = actual.copy();
    bool result = false;
    bool resultExpected = false;
    {
        QPainter painter(&actual);
        painter.setRenderHint(QPainter::Antialiasing);
        result = paintScene(painter);
    }
    {
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        resultExpected = paintModel(painter);
    }
    expect(QStringLiteral("the result of ") + what, result, resultExpected);
    if (comparePictures) {
        expect(QStringLiteral("the picture of ") + what, firstDifference(actual, expected), QString());
    }
}

template <class Scene, class Model>
void SceneTwins<Scene, Model>::refreshArea(bool comparePictures)
{
    paintBoth(
        QStringLiteral("refreshArea"), 80, comparePictures,
        [this](QPainter &painter) { return m_scene->refreshArea(&painter); },
        [this](QPainter &painter) { return m_model->refreshArea(painter); });
}

template <class Scene, class Model>
void SceneTwins<Scene, Model>::drawHandles()
{
    if (handlesAreInReach()) {
        paintBoth(
            QStringLiteral("DrawVertexSign"), 200, true,
            [this](QPainter &painter) { return m_scene->DrawVertexSign(&painter); },
            [this](QPainter &painter) { return m_model->DrawThreeEllipseSign(painter); });
    }
}

/*! \brief Adds the rows for compareSequences(), each with \a sequences sequences. */
inline void addSequenceRows(int rows, int sequences)
{
    QTest::addColumn<int>("firstSeed");
    for (int row = 0; row < rows; ++row) {
        const int firstSeed = row * sequences;
        QTest::newRow(qPrintable(QStringLiteral("seeds from %1").arg(firstSeed))) << firstSeed;
    }
}

/*!
 * \brief Runs the sequences of a row. If the twins differ, the test fails with the difference and the preceding steps.
 */
template <class Twins>
void compareSequences(int sequences, int steps)
{
    QFETCH(int, firstSeed);
    for (int seed = firstSeed; seed < firstSeed + sequences; ++seed) {
        Twins twins(static_cast<quint32>(seed));
        QString difference = twins.difference();
        for (int step = 0; step < steps && difference.isEmpty(); ++step) {
            difference = twins.step();
        }
        if (!difference.isEmpty()) {
            const QStringList history = twins.history();
            for (const QString &line : history) {
                qWarning("%s", qPrintable(line));
            }
            QFAIL(qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(difference)));
        }
    }
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_SCENETWINS_H
