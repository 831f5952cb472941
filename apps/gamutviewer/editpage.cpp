// SPDX-License-Identifier: MIT
#include "editpage.h"

#include "chromaticity.h"
#include "document.h"
#include "pointerevent.h"
#include "targetsession.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

// What the chart's pictures show, and the margin around it.
constexpr ceiechart::ChromaRange xyRange{0.0F, 0.84F, 0.0F, 0.94F};
constexpr ceiechart::ChromaRange uvRange{0.0F, 0.65F, 0.0F, 0.68F};
constexpr int xyMarginPercent = 5;
constexpr int uvMarginPercent = 15;

constexpr int smallestPicture = 160; // pixels
constexpr double snapPixels = 8.0;
constexpr double handleReach = 6.0; // pixels from the middle of a handle
constexpr double nudgeStep = 0.001;
constexpr double fineNudgeStep = 0.0001;
constexpr double coarseNudgeStep = 0.01;
constexpr int nudgeMergeKey = 100; // and the vertex; the panel's fields have the keys below

Model::ColorGamutInfo info(const std::optional<Model::ColorGamut> &gamut)
{
    const Model::Targets t = gamut ? gamut->getTargets() : Model::Targets();
    return {t.red, t.green, t.blue, t.white};
}

QPointF arrowDirection(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, 1};
    case Qt::Key_Down:
        return {0, -1};
    default:
        return {};
    }
}

bool differ(const QPointF &a, const QPointF &b)
{
    return a.x() != b.x() || a.y() != b.y();
}

} // namespace

EditPage::EditPage(TargetSession *session, DrawCEIPicture::CEIEType type, QWidget *parent)
    : Page(session->document(), parent)
    , m_session(session)
    , m_type(type)
{
    const bool isXy = type == DrawCEIPicture::XyDiagram;
    auto *layout = new QVBoxLayout(this);
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    layout->addLayout(row);
    m_axes = new QCheckBox(isXy ? tr("&Axes and Planckian locus") : tr("&Axes"), this);
    m_axes->setChecked(true);
    row->addWidget(m_axes);
    if (isXy) {
        m_wavelengths = new QCheckBox(tr("&Wavelengths"), this);
        m_wavelengths->setChecked(true);
        row->addWidget(m_wavelengths);
    }
    row->addStretch();
    m_box = new ChartBox(this);
    layout->addWidget(m_box, 1);
    m_chart = new CEIEGraphicsView(m_box, type);
    // Otherwise each painting would take the target's white away.
    m_chart->setDrawColorTPoint(false);
    m_chart->getLegend()->setLegendVisible(CEIELegend::CommonGamut, false);
    m_overlay = std::make_unique<GamutOverlay>(m_chart->view()->scene());

    NQCEIEGraphicsView *view = m_chart->view();
    view->setAccessibleName(isXy ? tr("Editable diagram, CIE 1931 x, y") : tr("Editable diagram, CIE 1976 u′, v′"));
    view->setAccessibleDescription(tr("R, G, B, W select; arrow keys move; Esc cancels a drag"));
    view->setFocusPolicy(Qt::StrongFocus);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->viewport()->setMouseTracking(true);
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);

    connect(m_box, &ChartBox::resized, this, &EditPage::refreshWhenShown);
    connect(m_axes, &QCheckBox::toggled, m_chart, &CEIEGraphicsView::setIsDrawCoordinate);
    if (m_wavelengths) {
        connect(m_wavelengths, &QCheckBox::toggled, m_chart, &CEIEGraphicsView::setIsDrawWaveLength);
    }
    connect(session, &TargetSession::rulesChanged, this, &EditPage::applyRules);
    connect(session, &TargetSession::selectionChanged, this, &EditPage::refreshWhenShown);
    connect(m_chart, &CEIEGraphicsView::signal_colorGamutValueChanged, this, &EditPage::targetMoved);
    connect(m_chart, &CEIEGraphicsView::signal_targetInfoChanged, this, &EditPage::whiteRequested);
    applyRules();
}

void EditPage::applyRules()
{
    m_chart->setRGBPointEnable(!m_session->lockPrimaries());
    m_chart->setColorTempertureChecked(m_session->holdWhite());
}

void EditPage::fit()
{
    const bool isXy = m_type == DrawCEIPicture::XyDiagram;
    const ceiechart::ChromaRange &range = isXy ? xyRange : uvRange;
    const double aspect = double(range.xMax) / double(range.yMax);
    const QSize room = m_box->size() - QSize(2, m_chart->getLegend()->sizeHint().height() + 2);
    const int height = std::max(smallestPicture, std::min(room.height(), int(room.width() / aspect)));
    const QSize picture(int(height * aspect), height);
    if (picture != m_pictureSize) {
        m_pictureSize = picture;
        m_chart->setImageWidth(picture.width());
        m_chart->setImageHeight(picture.height());
        m_geometry.setPicture(picture.width(), picture.height(), isXy ? xyMarginPercent : uvMarginPercent, range);
    }
    m_chart->layout()->activate();
    m_box->place(m_chart);
}

void EditPage::pushGamuts()
{
    m_chart->setColorGamut(info(document()->target()), info(document()->original()));
    m_overlay->show(
        document()->description(), m_session->selected(), [this](const QPointF &xy) { return scenePosition(xy); });
}

void EditPage::refresh()
{
    fit();
    pushGamuts();
    QVector<QPointF> points;
    for (const NamedPoint &point : document()->description().measurePoints) {
        points.append(m_type == DrawCEIPicture::XyDiagram ? point.xy : uvFromXy(point.xy));
    }
    if (points == m_shownPoints) {
        return;
    }
    m_shownPoints = points;
    if (m_type == DrawCEIPicture::XyDiagram) {
        m_chart->setOtherPoints(points.toList(), {});
    } else {
        m_chart->setMeasureValuePoints(points.toList());
        // The points are part of the picture, which this draws anew.
        m_chart->setIsDrawCoordinate(m_axes->isChecked());
    }
}

QPointF EditPage::scenePosition(const QPointF &xy) const
{
    const QPointF shown = m_type == DrawCEIPicture::XyDiagram ? xy : uvFromXy(xy);
    return m_geometry.toExactPixel(shown.x(), shown.y());
}

QPoint EditPage::viewportPosition(const QPointF &xy) const
{
    return m_chart->view()->mapFromScene(scenePosition(xy));
}

QPointF EditPage::chromaticityAt(const QPointF &position) const
{
    const QPointF scene = m_chart->view()->mapToScene(QPoint()) + position;
    const QPointF shown = m_geometry.toChroma(scene.x() - ceiechart::DiagramGeometry::xOffset, scene.y());
    return m_type == DrawCEIPicture::XyDiagram ? shown : xyFromUv(shown);
}

double EditPage::snapReach() const
{
    return snapPixels * m_geometry.unitsPerPixelX();
}

bool EditPage::eventFilter(QObject *watched, QEvent *event)
{
    const bool isViewport = watched == m_chart->view()->viewport();
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return isViewport && handlePointer(static_cast<QMouseEvent *>(event));
    case QEvent::Leave:
        if (isViewport) {
            Q_EMIT pointerLeft();
        }
        break;
    case QEvent::ShortcutOverride:
        // A key that the page takes must not reach a shortcut of the window first.
        if (!isViewport && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape && m_pointer == Pointer::Down) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyPress:
        return !isViewport && keyPressed(static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
        if (!static_cast<QKeyEvent *>(event)->isAutoRepeat()) {
            document()->breakMerging();
        }
        break;
    default:
        break;
    }
    return Page::eventFilter(watched, event);
}

bool EditPage::handlePointer(QMouseEvent *event)
{
    if (m_forwarding) {
        return false;
    }
    const bool wasCancelled = m_pointer == Pointer::Cancelled;
    switch (event->type()) {
    case QEvent::MouseMove:
        pointerMoved(*event);
        break;
    case QEvent::MouseButtonRelease:
        pointerReleased(*event);
        break;
    default:
        pointerPressed(*event);
    }
    if (!wasCancelled) {
        forward(event);
    }
    return true;
}

void EditPage::pointerPressed(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton || m_pointer != Pointer::Up) {
        return;
    }
    m_pointer = Pointer::Down;
    m_pointerHasMoved = false;
    grabHandle(pointerPosition(event));
    m_pointerXy = chromaticityAt(pointerPosition(event) + m_grabOffset);
    m_session->beginDrag();
}

void EditPage::pointerMoved(const QMouseEvent &event)
{
    if (m_pointer != Pointer::Up && !(event.buttons() & Qt::LeftButton)) {
        // The release went elsewhere.
        m_pointer = Pointer::Up;
        m_grabbed.reset();
        m_grabOffset = QPointF();
        m_session->endDrag();
    }
    m_pointerXy = chromaticityAt(pointerPosition(event) + m_grabOffset);
    m_pointerHasMoved = true;
    Q_EMIT pointedAt(m_pointerXy);
}

void EditPage::pointerReleased(const QMouseEvent &event)
{
    if (event.button() == Qt::LeftButton) {
        m_pointer = Pointer::Up;
        m_session->endDrag();
    }
}

void EditPage::grabHandle(const QPointF &position)
{
    m_grabbed.reset();
    m_grabOffset = QPointF();
    const auto target = document()->target();
    if (!target) {
        return;
    }
    for (const Vertex vertex : {Vertex::White, Vertex::Red, Vertex::Green, Vertex::Blue}) {
        const QPointF middle = viewportPosition(xyOf(targetAt(target->getTargets(), vertex)));
        const QPointF offset = middle - position;
        if (std::max(std::fabs(offset.x()), std::fabs(offset.y())) <= handleReach) {
            m_grabbed = vertex;
            m_grabOffset = offset;
            return;
        }
    }
}

// The chart draws handles a few pixels to the right of where it reads the pointer. A press on a handle is meant for
// what the handle stands for, so the chart is given the place where it reads that.
void EditPage::forward(QMouseEvent *event)
{
    QPointF position = pointerPosition(*event) + m_grabOffset;
    if (m_grabbed != Vertex::White) {
        position.rx() -= ceiechart::DiagramGeometry::xOffset;
    }
    QMouseEvent shifted = movedTo(*event, QPointF(position.toPoint()));
    m_forwarding = true;
    QCoreApplication::sendEvent(m_chart->view()->viewport(), &shifted);
    m_forwarding = false;
    event->setAccepted(shifted.isAccepted());
    if (event->type() == QEvent::MouseButtonRelease && event->button() == Qt::LeftButton) {
        m_grabbed.reset();
        m_grabOffset = QPointF();
    }
}

void EditPage::cancelDrag()
{
    // The chart has its drag ended; what the pointer does until its button is up is kept from it.
    m_session->cancelDrag();
    m_pointer = Pointer::Cancelled;
    QWidget *viewport = m_chart->view()->viewport();
    const QPointF position = viewportPosition(m_pointerXy);
    QMouseEvent release(QEvent::MouseButtonRelease, position, viewport->mapToGlobal(position.toPoint()), Qt::LeftButton,
        Qt::NoButton, Qt::NoModifier);
    m_forwarding = true;
    QCoreApplication::sendEvent(viewport, &release);
    m_forwarding = false;
    m_grabbed.reset();
    m_grabOffset = QPointF();
    pushGamuts();
}

bool EditPage::keyPressed(QKeyEvent *event)
{
    if (m_pointer == Pointer::Down) {
        if (event->key() == Qt::Key_Escape) {
            cancelDrag();
            return true;
        }
        return !arrowDirection(event->key()).isNull();
    }
    if (nudge(event)) {
        return true;
    }
    if (event->modifiers() != Qt::NoModifier) {
        return false;
    }
    switch (event->key()) {
    case Qt::Key_R:
        m_session->select(Vertex::Red);
        return true;
    case Qt::Key_G:
        m_session->select(Vertex::Green);
        return true;
    case Qt::Key_B:
        m_session->select(Vertex::Blue);
        return true;
    case Qt::Key_W:
        m_session->select(Vertex::White);
        return true;
    default:
        return false;
    }
}

bool EditPage::nudge(QKeyEvent *event)
{
    const QPointF direction = arrowDirection(event->key());
    const auto target = document()->target();
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (direction.isNull() || !target
        || (modifiers != Qt::NoModifier && modifiers != Qt::ShiftModifier && modifiers != Qt::ControlModifier)) {
        return false;
    }
    const double step = modifiers == Qt::ShiftModifier ? fineNudgeStep
        : modifiers == Qt::ControlModifier             ? coarseNudgeStep
                                                       : nudgeStep;
    const Vertex vertex = m_session->selected();
    const QPointF before = xyOf(targetAt(target->getTargets(), vertex));
    const QPointF after = m_type == DrawCEIPicture::XyDiagram ? roundedXy(before + direction * step)
                                                              : xyFromUv(uvFromXy(before) + direction * step);
    m_session->setChromaticity(vertex, after, nudgeMergeKey + int(vertex));
    return true;
}

void EditPage::targetMoved(const ColorTriangleObject &moved)
{
    const auto target = document()->target();
    if (m_pointer != Pointer::Down || !document()->isDragging() || !target) {
        return;
    }
    if (m_grabbed && !m_pointerHasMoved) {
        // A press on a handle picks it; the chart would put it on a whole pixel.
        m_session->select(*m_grabbed);
        pushGamuts();
        return;
    }
    const TrianglePoint &t = moved.trianglePoint();
    const QPointF positions[] = {t.redPos(), t.greenPos(), t.bluePos()};
    for (const Vertex vertex : {Vertex::Red, Vertex::Green, Vertex::Blue}) {
        const QPointF &position = positions[int(vertex)];
        if (differ(position, xyOf(targetAt(target->getTargets(), vertex)))) {
            m_session->dragTo(vertex, position, snapReach());
            break;
        }
    }
    // Whether or not that changed the document: the chart has gone its own way.
    pushGamuts();
}

void EditPage::whiteRequested()
{
    if (m_pointer != Pointer::Down || !document()->isDragging()) {
        return;
    }
    if (m_pointerHasMoved) {
        m_session->dragTo(Vertex::White, m_pointerXy, snapReach());
    } else {
        m_session->select(Vertex::White);
    }
}

} // namespace gamutviewer
