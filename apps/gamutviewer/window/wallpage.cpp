// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/wallpage.h"

#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"
#include "editing/document.h"
#include "editing/targetsession.h"
#include "panel/accentbutton.h"
#include "panel/cabinettable.h"
#include "panel/closelook.h"
#include "panel/scaledfont.h"
#include "panel/wallmap.h"
#include "panel/wallverdict.h"

#include <QAction>
#include <QActionGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr double barScale = 0.85;
constexpr int leastMap = 220; // pixels
constexpr int looksInARow = 2;
constexpr double mapShare = 0.49; // of the width, where the table has room beside it

} // namespace

WallPage::WallPage(TargetSession *session, QWidget *parent)
    : Page(session->document(), parent)
    , m_session(session)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_stack = new QStackedWidget(this);
    layout->addWidget(m_stack);
    m_note = new QLabel(noWallText(), m_stack);
    m_note->setWordWrap(true);
    m_note->setMargin(40);
    m_note->setAlignment(Qt::AlignCenter);
    m_note->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_stack->addWidget(m_note);
    m_content = new QWidget(m_stack);
    m_stack->addWidget(m_content);
    auto *all = new QVBoxLayout(m_content);
    all->setContentsMargins(6, 6, 6, 0);
    m_verdict = new WallVerdict(session, m_content);
    all->addWidget(m_verdict);
    auto *bar = new QHBoxLayout;
    all->addLayout(bar);
    buildQuantities(bar);
    m_parts = new QSplitter(Qt::Horizontal, m_content);
    m_parts->setChildrenCollapsible(false);
    m_parts->addWidget(buildMaps());
    m_parts->addWidget(buildNumbers());
    m_parts->setStretchFactor(0, 1);
    m_parts->setStretchFactor(1, 1);
    all->addWidget(m_parts, 1);
    connect(m_parts, &QSplitter::splitterMoved, this, [this] { m_isSplitByHand = true; });
    connect(m_verdict, &WallVerdict::exportWanted, this, &WallPage::exportWanted);
    connect(session, &TargetSession::selectedCabinetChanged, m_verdict, [this] {
        if (isVisible()) {
            m_verdict->refresh();
            showSelection();
        }
    });
}

QWidget *WallPage::buildMaps()
{
    m_maps = new QWidget(m_content);
    m_maps->setMinimumWidth(leastMap);
    auto *column = new QVBoxLayout(m_maps);
    column->setContentsMargins(0, 0, 4, 4);
    column->setSpacing(4);
    const QFont small = scaledFont(font(), barScale);
    m_map = new WallMap(m_session, WallMap::Cabinets::Placed, m_maps);
    m_map->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    column->addWidget(m_map);
    m_unplacedTitle = new QLabel(tr("Position not known"), m_maps);
    m_unplacedTitle->setFont(small);
    column->addWidget(m_unplacedTitle);
    m_unplaced = new WallMap(m_session, WallMap::Cabinets::Unplaced, m_maps);
    m_unplaced->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    column->addWidget(m_unplaced);
    m_selected = new QLabel(m_maps);
    m_selected->setFont(small);
    m_selected->setTextFormat(Qt::PlainText);
    m_selected->setAccessibleName(tr("Selected cabinet"));
    // Its room stays, so that the map does not change when a cabinet is selected.
    m_selected->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_selected->setFixedHeight(QFontMetrics(small).height());
    column->addWidget(m_selected);
    m_legend = new WallLegend(m_maps);
    column->addWidget(m_legend);
    column->addStretch(1);
    for (WallMap *map : {m_map, m_unplaced}) {
        map->setMaximumHeight(1); // until there is a wall
        map->setFont(small);
    }
    return m_maps;
}

void WallPage::buildQuantities(QHBoxLayout *bar)
{
    bar->setSpacing(2);
    m_quantities = new QActionGroup(this);
    const QFont small = scaledFont(font(), barScale);
    m_extent = new QLabel(m_content);
    m_extent->setFont(small);
    m_extent->setTextFormat(Qt::PlainText);
    bar->addWidget(m_extent);
    bar->addSpacing(12);
    for (const WallQuantity quantity : allWallQuantities) {
        auto *action = new QAction(wallQuantityName(quantity), this);
        action->setCheckable(true);
        action->setData(int(quantity));
        action->setToolTip(wallQuantityDescription(quantity));
        m_quantities->addAction(action);
        addAction(action);
        auto *button = new AccentButton(this);
        button->setFont(small);
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        bar->addWidget(button);
    }
    bar->addStretch();
    choose(WallQuantity::Headroom);
    connect(m_quantities, &QActionGroup::triggered, this, [this] {
        m_isQuantityChosen = true;
        refreshMaps();
    });
}

QWidget *WallPage::buildNumbers()
{
    auto *numbers = new QWidget(m_content);
    auto *column = new QVBoxLayout(numbers);
    column->setContentsMargins(4, 0, 0, 4);
    column->setSpacing(4);
    auto *looks = new QGridLayout;
    looks->setSpacing(4);
    column->addLayout(looks, 2);
    const QFont small = scaledFont(font(), barScale);
    for (const Vertex vertex : ceiechart::allGamutVertices) {
        auto *look = new CloseLook(m_session, vertex, numbers);
        look->setFont(small);
        readOut(look);
        const int number = int(vertex);
        looks->addWidget(look, number / looksInARow, number % looksInARow);
        m_looks.at(std::size_t(vertex)) = look;
    }
    auto *bar = new QHBoxLayout;
    column->addLayout(bar);
    const auto addButton = [&](const QString &text, const QString &explanation) {
        auto *button = new QToolButton(numbers);
        button->setText(text);
        button->setToolTip(explanation);
        button->setFont(small);
        button->setFocusPolicy(Qt::TabFocus);
        button->setAutoRaise(true);
        return button;
    };
    m_worst = addButton(tr("Cabinets, worst first"), tr("Sort those first that do not show the target"));
    m_copy = addButton(tr("Copy table"), tr("Copy all of the table, for a spreadsheet"));
    bar->addWidget(m_worst);
    bar->addStretch();
    bar->addWidget(m_copy);
    m_table = new CabinetTable(m_session, numbers);
    m_table->setFont(small);
    column->addWidget(m_table, 3);
    m_incomplete = new QLabel(numbers);
    m_incomplete->setFont(small);
    m_incomplete->setTextFormat(Qt::PlainText);
    m_incomplete->setAccessibleName(tr("Cabinets of which nothing is known"));
    m_incomplete->setWordWrap(true);
    m_incomplete->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_incomplete->hide();
    column->addWidget(m_incomplete);
    connect(m_worst, &QToolButton::clicked, m_table, &CabinetTable::sortByJudgement);
    connect(m_copy, &QToolButton::clicked, m_table, &CabinetTable::copy);
    // Its arrow takes room.
    connect(m_table->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, [this] {
        shareWidth();
        shareRoom();
    });
    return numbers;
}

QStringList WallPage::hints() const
{
    if (document()->description().wall.cabinets.empty()) {
        return {};
    }
    return {tr("Drag a corner of the target in a close look: move it   Arrows: next cabinet   Esc: none   "
               "Ctrl+C in the table: copy it"),
        tr("Drag a corner of the target in a close look: move it   Arrows: next cabinet"),
        tr("Arrows: next cabinet   Esc: none")};
}

void WallPage::choose(WallQuantity quantity)
{
    for (QAction *action : m_quantities->actions()) {
        action->setChecked(WallQuantity(action->data().toInt()) == quantity);
    }
}

WallQuantity WallPage::quantity() const
{
    return WallQuantity(m_quantities->checkedAction()->data().toInt());
}

Picture WallPage::picture() const
{
    Picture picture = Page::picture();
    const DisplayWall &wall = document()->description().wall;
    if (!wall.cabinets.empty()) {
        picture.wall = std::make_shared<const WallPicture>(WallPicture{wall, m_session->assessment().wall, quantity()});
    }
    return picture;
}

void WallPage::refresh()
{
    const DisplayWall &wall = document()->description().wall;
    const bool hasWall = !wall.cabinets.empty();
    m_note->setText(noWallText());
    m_stack->setCurrentWidget(hasWall ? m_content : m_note);
    setFocusInside(hasWall ? static_cast<QWidget *>(m_map->isEmpty() ? m_unplaced : m_map) : m_note);
    if (!m_isQuantityChosen) {
        choose(usualQuantity(m_session->assessment().wall.get()));
    }
    // Without a wall all of them let go of what they have of the former one.
    m_verdict->refresh();
    m_table->refresh();
    shareWidth();
    refreshMaps();
    for (CloseLook *look : m_looks) {
        look->refresh();
    }
    refreshIncomplete();
}

QString WallPage::noWallText() const
{
    if (!document()->awaitsWall()) {
        return tr(
            "No wall is known of this display.\n\nOpen a list of measurements with a column for the cabinet, or for "
            "its row and column, and with red, green and blue of each; or a display description that has a wall.");
    }
    const QString text = tr(
        "What is followed is no wall yet.\n\nIt is shown as a wall as soon as the list names a second cabinet, and one "
        "cabinet has red, green and blue, and no line that could not be read.");
    const bool hidesOne = !document()->own().wall.cabinets.empty();
    return hidesOne ? text + QStringLiteral("\n\n")
            + tr("The wall that was open is shown again when the list is followed no further.")
                    : text;
}

void WallPage::refreshIncomplete()
{
    constexpr std::size_t mostNamed = 4;
    const DisplayWall &wall = document()->description().wall;
    const auto &incomplete = wall.incomplete;
    QStringList names;
    for (std::size_t i = 0; i < incomplete.size() && i < mostNamed; ++i) {
        names.append(tr("%1 (%2)", "cabinet, and why nothing is known of it")
                         .arg(cabinetName(wall, incomplete[i]), oneLine(incompleteReasonText(incomplete[i]))));
    }
    QString text = names.join(QStringLiteral(", "));
    if (incomplete.size() > mostNamed) {
        text = tr("%1 and %2 more", "names of cabinets and a number").arg(text).arg(incomplete.size() - mostNamed);
    }
    m_incomplete->setText(tr("Nothing is known of %1.", "cabinets").arg(text));
    m_incomplete->setVisible(!incomplete.empty());
}

void WallPage::refreshMaps()
{
    static const std::vector<CabinetAssessment> none;
    const DisplayWall &wall = document()->description().wall;
    const auto &assessment = m_session->assessment().wall;
    const WallScale scale(quantity(), assessment ? assessment->cabinets : none, wall.unit);
    m_map->refresh(scale);
    m_unplaced->refresh(scale);
    m_legend->setScale(scale);
    showSelection();
    m_map->setVisible(!m_map->isEmpty());
    m_unplaced->setVisible(!m_unplaced->isEmpty());
    m_unplacedTitle->setVisible(!m_unplaced->isEmpty());
    m_extent->setText(m_map->isEmpty()
            ? tr("Wall")
            : tr("Wall %1 × %2", "rows, columns").arg(m_map->gridRows()).arg(m_map->model()->columnCount()));
    shareRoom();
}

void WallPage::showSelection()
{
    const QString placed = m_map->selectionText();
    const QString text = placed.isEmpty() ? m_unplaced->selectionText() : placed;
    const QFontMetrics metrics(m_selected->font());
    m_selected->setText(metrics.elidedText(text, Qt::ElideMiddle, m_maps->width() - 4));
    m_selected->setToolTip(plainToolTip(text));
}

//! All columns of the table are to be seen, as long as there is room for a map. The user may move the border.
void WallPage::shareWidth()
{
    if (m_isSplitByHand) {
        return;
    }
    const int width = m_parts->width() - m_parts->handleWidth();
    const QMargins margins = m_table->parentWidget()->layout()->contentsMargins();
    const int numbers = m_table->wholeWidth() + margins.left() + margins.right();
    const int map = std::max(std::min(int(mapShare * width), width - numbers), leastMap);
    if (m_parts->sizes().constFirst() != map) {
        m_parts->setSizes({map, width - map});
    }
}

//! The maps take what they need of the height, in proportion where there is too little.
void WallPage::shareRoom()
{
    const QMargins margins = m_maps->layout()->contentsMargins();
    const int spacing = m_maps->layout()->spacing();
    const int width = m_maps->width() - margins.left() - margins.right();
    int room = m_maps->height() - margins.top() - margins.bottom() - m_legend->heightForWidth(width)
        - m_selected->height() - 3 * spacing;
    if (!m_unplaced->isEmpty()) {
        room -= m_unplacedTitle->sizeHint().height() + 2 * spacing;
    }
    const int placed = m_map->heightFor(width);
    const int others = m_unplaced->heightFor(width);
    const double share = std::min(1.0, double(std::max(room, 40)) / std::max(placed + others, 1));
    m_map->setMaximumHeight(std::max(int(placed * share), 1));
    m_unplaced->setMaximumHeight(std::max(int(others * share), 1));
    m_map->updateGeometry();
    m_unplaced->updateGeometry();
    showSelection();
}

void WallPage::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    m_content->layout()->activate();
    shareWidth();
    shareRoom();
}

} // namespace gamutviewer
