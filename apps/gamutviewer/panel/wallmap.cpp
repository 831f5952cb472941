// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/wallmap.h"

#include "editing/targetsession.h"
#include "panel/scaledfont.h"
#include "panel/wallmapmodel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

constexpr double highestCell = 1.25; // as a part of its width
constexpr int largestCell = 150; // pixels

} // namespace

class WallMap::Delegate : public QStyledItemDelegate {
public:
    Delegate(const WallMap *map, const WallMapModel *model)
        : QStyledItemDelegate(const_cast<WallMap *>(map))
        , m_map(map)
        , m_model(model)
    {
    }

    void setFonts(const WallCellFonts &fonts) { m_fonts = fonts; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        auto cell = m_model->cell(index);
        if (!cell) {
            return;
        }
        const auto selected = m_map->m_session->selectedCabinet();
        cell->isSelected = selected && m_model->cabinetAt(index) == selected;
        paintWallCell(painter, option.rect, *cell, m_fonts, option.palette);
        if (option.state.testFlag(QStyle::State_HasFocus) && !cell->isSelected) {
            painter->setPen(QPen(option.palette.color(QPalette::Text), 1.0, Qt::DotLine));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
        }
    }

private:
    const WallMap *m_map;
    const WallMapModel *m_model;
    WallCellFonts m_fonts;
};

WallMap::WallMap(TargetSession *session, Cabinets cabinets, QWidget *parent)
    : QTableView(parent)
    , m_session(session)
    , m_cabinets(cabinets)
    , m_model(new WallMapModel(session, cabinets == Cabinets::Placed ? placedCabinets : unplacedCabinets, this))
    , m_delegate(new Delegate(this, m_model))
{
    setModel(m_model);
    setItemDelegate(m_delegate);
    setAccessibleName(
        cabinets == Cabinets::Placed ? tr("Map of the wall") : tr("Cabinets whose position is not known"));
    setFrameShape(NoFrame);
    setShowGrid(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setBackgroundRole(QPalette::Window);
    for (QHeaderView *header : {horizontalHeader(), verticalHeader()}) {
        header->hide();
        header->setMinimumSectionSize(1);
        header->setSectionResizeMode(QHeaderView::Fixed);
    }
    connect(m_model, &QAbstractItemModel::modelReset, this, &WallMap::layOut);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex &current) {
        if (m_isShowing) {
            return;
        }
        if (const auto cabinet = m_model->cabinetAt(current)) {
            m_session->selectCabinet(cabinet);
        }
    });
    connect(session, &TargetSession::selectedCabinetChanged, this, &WallMap::showSelection);
}

void WallMap::refresh(const WallScale &scale)
{
    m_isShowing = true;
    m_model->refresh(scale);
    m_isShowing = false;
    layOut();
    showSelection();
}

bool WallMap::isEmpty() const
{
    return m_model->grid().rows == 0;
}

int WallMap::gridRows() const
{
    return m_model->grid().rows;
}

QModelIndex WallMap::indexOf(std::size_t cabinet) const
{
    return m_model->indexOf(cabinet);
}

int WallMap::heightFor(int width) const
{
    const WallGrid &grid = m_model->grid();
    if (grid.columns == 0) {
        return 0;
    }
    return int(std::ceil(grid.rows * std::min(double(width) / grid.columns, double(largestCell)) * highestCell));
}

void WallMap::layOut()
{
    const WallGrid &grid = m_model->grid();
    if (grid.rows == 0) {
        return;
    }
    const QSize room = size();
    const double width = std::min(double(room.width()) / grid.columns, double(largestCell));
    const double height = std::min(double(room.height()) / grid.rows, width * highestCell);
    // Cells of whole pixels; what is left over goes to the first ones, one pixel each.
    const auto share = [](QHeaderView *header, int count, double each) {
        const int all = int(std::floor(each * count));
        const int least = std::max(all / count, 1);
        const int more = least > 1 || all >= count ? all - least * count : 0;
        header->setDefaultSectionSize(least);
        for (int i = 0; i < count; ++i) {
            header->resizeSection(i, least + (i < more ? 1 : 0));
        }
    };
    share(horizontalHeader(), grid.columns, width);
    share(verticalHeader(), grid.rows, height);
    m_delegate->setFonts(wallCellFonts(
        font(), QSizeF(std::floor(width), std::floor(height)), m_model->longestValue(), m_model->longestName()));
    viewport()->update();
}

void WallMap::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    layOut();
}

void WallMap::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_session->selectedCabinet()) {
        m_session->selectCabinet(std::nullopt);
        return;
    }
    QTableView::keyPressEvent(event);
}

void WallMap::showSelection()
{
    const auto cabinet = m_session->selectedCabinet();
    const QModelIndex index = cabinet ? m_model->indexOf(*cabinet) : QModelIndex();
    m_isShowing = true;
    if (!index.isValid()) {
        clearSelection();
        setCurrentIndex(QModelIndex());
    } else if (currentIndex() != index) {
        setCurrentIndex(index);
    }
    m_isShowing = false;
    viewport()->update();
}

WallLegend::WallLegend(QWidget *parent)
    : QWidget(parent)
{
    setFont(scaledFont(font(), 0.8));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void WallLegend::setScale(const WallScale &scale)
{
    m_scale = scale;
    setAccessibleName(wallLegendText(scale));
    updateGeometry();
    update();
}

int WallLegend::heightForWidth(int width) const
{
    return int(std::ceil(wallLegendHeight(m_scale, font(), width)));
}

void WallLegend::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        updateGeometry();
    }
}

void WallLegend::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintWallLegend(&painter, rect(), m_scale, font(), palette());
}

} // namespace gamutviewer
