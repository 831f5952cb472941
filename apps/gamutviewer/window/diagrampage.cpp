// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/diagrampage.h"

#include "drawing/documentview.h"
#include "drawing/layerswitches.h"
#include "editing/document.h"
#include "editing/targetsession.h"
#include "panel/accentbutton.h"
#include "panel/layerkey.h"
#include "panel/scaledfont.h"
#include "window/lens.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace gamutviewer {

namespace {

using ceiechart::DiagramView;

constexpr double lensShare = 0.36; // of the shorter side of the diagram
constexpr int smallestLens = 150; // pixels
constexpr int largestLens = 520;
constexpr int lensMargin = 6;
// Of what is being moved, on either side: its label is kept clear of the lens.
constexpr QMargins labelRoom(240, 110, 40, 110);
constexpr double barScale = 0.85;
constexpr double vertexZoom = 6.0; // a distance of Δu′v′ 0.004 can be seen

} // namespace

DiagramPage::DiagramPage(TargetSession *session, QWidget *parent)
    : Page(session->document(), parent)
    , m_switches(new LayerSwitches(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_key = new LayerKey(document(), m_switches, this);
    m_key->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    layout->addWidget(m_key);
    auto *right = new QVBoxLayout;
    right->setContentsMargins(6, 6, 6, 0);
    layout->addLayout(right, 1);
    auto *bar = new QHBoxLayout;
    right->addLayout(bar);
    m_stage = new QWidget(this);
    m_stage->setMinimumSize(240, 240);
    right->addWidget(m_stage, 1);
    m_view = new DocumentView(session, m_switches, m_stage);
    m_lens = new Lens(session, m_switches, m_stage);
    m_stage->installEventFilter(this);
    buildBar(bar);
    setFocusInside(m_view);

    for (const DocumentView *view : {m_view, m_lens->view()}) {
        readOut(view);
    }
    connect(m_view, &DiagramView::diagramChanged, this, &DiagramPage::placeLens);
    connect(session, &TargetSession::pointedOut, this, &DiagramPage::showVertex);
    connect(m_switches, &LayerSwitches::changed, this, &DiagramPage::refreshWhenShown);
}

QAction *DiagramPage::addButton(QHBoxLayout *bar, const QString &text, const QString &explanation)
{
    auto *action = new QAction(text, this);
    action->setToolTip(explanation);
    addAction(action);
    auto *button = new AccentButton(this);
    button->setFont(scaledFont(font(), barScale));
    button->setDefaultAction(action);
    button->setAccessibleName(explanation);
    button->setFocusPolicy(Qt::TabFocus);
    bar->addWidget(button);
    return action;
}

void DiagramPage::buildBar(QHBoxLayout *bar)
{
    bar->setSpacing(2);
    m_diagrams = new QActionGroup(this);
    const std::pair<DiagramView::DiagramKind, QString> kinds[] = {
        {DiagramView::Cie1931, tr("x, y")}, {DiagramView::Cie1976, tr("u′, v′")}, {DiagramView::Cie1960, tr("u, v")}};
    const QString explanations[]
        = {tr("CIE 1931 x, y diagram"), tr("CIE 1976 u′, v′ diagram"), tr("CIE 1960 u, v diagram")};
    for (size_t i = 0; i < std::size(kinds); ++i) {
        QAction *action = addButton(bar, kinds[i].second, explanations[i]);
        action->setCheckable(true);
        action->setData(int(kinds[i].first));
        action->setChecked(kinds[i].first == m_view->diagramKind());
        m_diagrams->addAction(action);
    }
    connect(m_diagrams, &QActionGroup::triggered, this, [this](const QAction *action) {
        const auto kind = DiagramView::DiagramKind(action->data().toInt());
        m_view->setDiagram(kind);
        m_lens->view()->setDiagram(kind);
        m_lens->showWhite();
    });
    bar->addStretch();
    connect(
        addButton(bar, tr("All"), tr("Show all of the diagram")), &QAction::triggered, m_view, &DiagramView::showAll);
    connect(addButton(bar, tr("Target"), tr("Show the target")), &QAction::triggered, m_view, &DiagramView::showTarget);
    connect(addButton(bar, tr("White"), tr("Show the white point closely")), &QAction::triggered, m_view,
        &DiagramView::showWhite);
    bar->addSpacing(8);
    m_lensAction = addButton(bar, tr("Lens"), tr("Enlarge the white point in a corner of the diagram"));
    m_lensAction->setCheckable(true);
    m_lensAction->setChecked(true);
    connect(m_lensAction, &QAction::toggled, this, &DiagramPage::showLens);
    connect(m_view, &DiagramView::targetEdited, this, &DiagramPage::showLens);
    connect(m_view, &DiagramView::editingFinished, this, &DiagramPage::showLens);
    connect(m_view, &DiagramView::viewChanged, this, &DiagramPage::showLens);
}

QStringList DiagramPage::hints() const
{
    return {tr("Shift: slow   Ctrl: towards white   Alt: along an axis   Esc: cancel"),
        tr("Shift: slow  Ctrl: to white  Alt: axis  Esc: cancel"), tr("Shift: slow  Esc: cancel")};
}

Picture DiagramPage::picture() const
{
    Picture picture;
    picture.content = m_view->content();
    picture.view = m_view->viewport();
    return picture;
}

void DiagramPage::placeLens()
{
    m_view->setGeometry(m_stage->rect());
    const QRectF plot = m_view->viewport().plot();
    const int side = std::clamp(int(std::min(plot.width(), plot.height()) * lensShare), smallestLens, largestLens);
    // Where the horseshoe leaves room: above the line to red in x, y, below it in the other diagrams.
    const bool isAbove = m_view->diagramKind() == DiagramView::Cie1931;
    const int top = isAbove ? int(plot.top()) + lensMargin : int(plot.bottom()) - side - lensMargin;
    m_lens->setGeometry(int(plot.right()) - side - lensMargin, top, side, side);
}

void DiagramPage::showVertex(Vertex vertex)
{
    const auto target = document()->target();
    if (!target) {
        return;
    }
    if (vertex == Vertex::White) {
        m_view->showWhite();
        return;
    }
    m_view->setZoomFactor(std::max(m_view->zoomFactor(), vertexZoom));
    m_view->setCentre(xyOf(targetAt(target->getTargets(), vertex)));
}

void DiagramPage::showLens()
{
    bool isInTheWay = false;
    const auto target = document()->target();
    const auto moved = m_view->selectedVertex();
    if (m_view->isEditing() && moved && target) {
        const QPointF at
            = m_view->viewport().toPosition(ceiechart::xyOf(ceiechart::targetAt(target->getTargets(), *moved)));
        isInTheWay = m_lens->geometry().marginsAdded(labelRoom).contains(at.toPoint());
    }
    const bool isCloser = m_lens->view()->viewport().scale() > m_view->viewport().scale();
    m_lens->setVisible(m_lensAction->isChecked() && isCloser && !isInTheWay);
}

void DiagramPage::refresh()
{
    m_view->refresh();
    m_lens->refresh(*m_view);
    showLens();
}

bool DiagramPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_stage && event->type() == QEvent::Resize) {
        placeLens();
    }
    return Page::eventFilter(watched, event);
}

} // namespace gamutviewer
