// SPDX-License-Identifier: MIT
#include "window/editpage.h"

#include "display/chromaticity.h"
#include "drawing/diagramkey.h"
#include "drawing/gamutcolors.h"
#include "drawing/pointerevent.h"
#include "editing/document.h"
#include "editing/targetsession.h"
#include "panel/layerrow.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

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

EditPage::EditPage(TargetSession *session, LayerSwitches *switches, DrawCEIPicture::CEIEType type, QWidget *parent)
    : Page(session->document(), parent)
    , m_session(session)
    , m_switches(switches)
    , m_diagram(type == DrawCEIPicture::XyDiagram ? Model::Diagram::Cie1931 : Model::Diagram::Cie1976)
{
    auto *layout = new QVBoxLayout(this);
    buildSwitches(layout);
    m_box = new ChartBox(this);
    layout->addWidget(m_box, 1);
    m_key = new DiagramKey(this);
    layout->addWidget(m_key);
    m_chart = new CEIEGraphicsView(m_box, type);
    // Otherwise each painting would take the target's white away.
    m_chart->setDrawColorTPoint(false);
    // The overlay draws them, and the key names everything.
    m_chart->setIsDrawCoordinate(false);
    m_chart->setIsDrawWaveLength(false);
    m_chart->getLegend()->hide();
    m_overlay = std::make_unique<GamutOverlay>(m_chart->view()->scene());

    NQCEIEGraphicsView *view = m_chart->view();
    view->setAccessibleName(m_diagram == Model::Diagram::Cie1931 ? tr("Editable diagram, CIE 1931 x, y")
                                                                 : tr("Editable diagram, CIE 1976 u′, v′"));
    view->setAccessibleDescription(tr("R, G, B, W select; arrow keys move; Esc cancels a drag"));
    view->setFocusPolicy(Qt::StrongFocus);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->viewport()->setMouseTracking(true);
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    m_box->showFocusOf(view);
    setFocusProxy(view);

    connect(m_box, &ChartBox::resized, this, &EditPage::refreshWhenShown);
    connect(switches, &LayerSwitches::changed, this, &EditPage::refreshWhenShown);
    connect(session, &TargetSession::rulesChanged, this, &EditPage::applyRules);
    connect(session, &TargetSession::selectionChanged, this, &EditPage::refreshWhenShown);
    connect(m_chart, &CEIEGraphicsView::signal_colorGamutValueChanged, this, &EditPage::targetMoved);
    connect(m_chart, &CEIEGraphicsView::signal_targetInfoChanged, this, &EditPage::whiteRequested);
    applyRules();
}

void EditPage::buildSwitches(QLayout *layout)
{
    const QVector<QVector<Layer>> rows{
        {Layer::Original, Layer::Measured, Layer::Declared, Layer::Target, Layer::Standards},
        {Layer::Axes, Layer::Wavelengths, Layer::PlanckianLocus},
        {Layer::MeasurePoints, Layer::ColorTemperaturePoints, Layer::CmyPoints}};
    for (const QVector<Layer> &row : rows) {
        m_rows.append(new LayerRow(m_switches, row, this));
        layout->addWidget(m_rows.last());
    }
}

void EditPage::applyRules()
{
    m_chart->setRGBPointEnable(!m_session->lockPrimaries());
    m_chart->setColorTempertureChecked(m_session->holdWhite());
}

void EditPage::fit()
{
    const double aspect = DiagramFrame::aspect(m_diagram);
    const QSize room = m_box->room() - QSize(2, 2);
    const int height = std::max(smallestPicture, std::min(room.height(), int(room.width() / aspect)));
    const QSize picture(int(height * aspect), height);
    if (picture != m_frame.size()) {
        m_frame = DiagramFrame(m_diagram, picture);
        m_chart->setImageWidth(picture.width());
        m_chart->setImageHeight(picture.height());
    }
    m_chart->layout()->activate();
    m_box->place(m_chart);
}

void EditPage::pushGamuts()
{
    m_chart->setColorGamut(info(document()->target()), info(document()->original()));
    m_overlay->showOnBareDiagram(document()->description(), m_switches->shown(), m_session->selected(), m_frame);
}

void EditPage::refresh()
{
    const DisplayDescription &description = document()->description();
    Layers available = layersOf(description);
    for (LayerRow *row : qAsConst(m_rows)) {
        row->setAvailable(available);
    }
    // On the ground of the u′, v′ diagram all lines show.
    m_key->setEntries(keyEntries(description, m_switches->shown() & ~Layers(Layer::CommonArea), KeyStyle::Overlay),
        chartGround(Model::Diagram::Cie1976));
    fit();
    pushGamuts();
}

QPoint EditPage::viewportPosition(const QPointF &xy) const
{
    return m_chart->view()->mapFromScene(m_frame.fromXy(xy));
}

QPointF EditPage::chromaticityAt(const QPointF &position) const
{
    return m_frame.toXy(m_chart->view()->mapToScene(QPoint()) + position);
}

// The reach of snapping is one of pixels, in every direction and on both diagrams.
void EditPage::dragTo(Vertex vertex, const QPointF &xy)
{
    QPointF aim = xy;
    if (m_session->snaps()) {
        double nearest = snapPixels;
        for (const QPointF &candidate : snapPoints(document()->description(), vertex)) {
            const QPointF way = m_frame.fromXy(candidate) - m_frame.fromXy(xy);
            const double distance = std::hypot(way.x(), way.y());
            if (distance <= nearest) {
                aim = candidate;
                nearest = distance;
            }
        }
    }
    m_session->dragTo(vertex, aim, 0.0);
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
    const QPointF after = m_diagram == Model::Diagram::Cie1931 ? roundedXy(before + direction * step)
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
            dragTo(vertex, position);
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
        dragTo(Vertex::White, m_pointerXy);
    } else {
        m_session->select(Vertex::White);
    }
}

} // namespace gamutviewer
