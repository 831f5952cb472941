// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/wallmap.h"

#include "editing/targetsession.h"
#include "panel/ornothing.h"
#include "panel/scaledfont.h"
#include "panel/wallmapmodel.h"

#include <QAbstractButton>
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
        orNothing([&] { paintCell(painter, option, index); });
    }

private:
    void paintCell(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
    {
        auto cell = m_model->cell(index);
        if (!cell) {
            return;
        }
        const auto selected = m_map->m_session->selectedCabinet();
        const bool isSelected = selected && m_model->cabinetAt(index) == selected;
        paintWallCell(painter, option.rect, *cell, m_fonts, option.palette);
        if (option.state.testFlag(QStyle::State_HasFocus) && !isSelected) {
            painter->setPen(QPen(option.palette.color(QPalette::Text), 1.0, Qt::DotLine));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
        }
    }

    const WallMap *m_map;
    const WallMapModel *m_model;
    WallCellFonts m_fonts;
};

//! The names of rows or columns at an edge of the map.
class WallMap::Edge : public QHeaderView {
public:
    Edge(Qt::Orientation orientation, const WallMapModel *model, QWidget *parent)
        : QHeaderView(orientation, parent)
        , m_model(model)
    {
        setMinimumSectionSize(1);
        setSectionResizeMode(QHeaderView::Fixed);
        setSectionsClickable(false);
        setFocusPolicy(Qt::NoFocus);
        viewport()->setBackgroundRole(QPalette::Window);
        hide();
    }

    //! Shows the names in \a font, in a \a room of that width or height; none for 0.
    void setRoom(double room, const QFont &font)
    {
        m_font = font;
        setVisible(room > 0.0);
        if (room > 0.0) {
            orientation() == Qt::Horizontal ? setFixedHeight(int(room)) : setFixedWidth(int(room));
        }
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        orNothing([this] { paintNames(); });
    }

private:
    void paintNames()
    {
        QPainter painter(viewport());
        std::vector<double> borders{double(sectionViewportPosition(0))};
        for (int i = 0; i < count(); ++i) {
            borders.push_back(borders.back() + sectionSize(i));
        }
        const WallGrid &grid = m_model->grid();
        paintWallEdge(&painter, viewport()->rect(), orientation(),
            orientation() == Qt::Horizontal ? grid.columnNames : grid.rowNames, borders, m_font, palette());
    }

    const WallMapModel *m_model;
    QFont m_font;
};

WallMap::WallMap(TargetSession *session, Cabinets cabinets, QWidget *parent)
    : QTableView(parent)
    , m_session(session)
    , m_cabinets(cabinets)
    , m_model(new WallMapModel(session, cabinets == Cabinets::Placed ? placedCabinets : unplacedCabinets, this))
    , m_delegate(new Delegate(this, m_model))
    , m_columnNames(new Edge(Qt::Horizontal, m_model, this))
    , m_rowNames(new Edge(Qt::Vertical, m_model, this))
{
    setHorizontalHeader(m_columnNames);
    setVerticalHeader(m_rowNames);
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
    // The corner between the edges is a button, which does nothing here and is not to look as if it did.
    setCornerButtonEnabled(false);
    for (auto *button : findChildren<QAbstractButton *>()) {
        button->installEventFilter(this);
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
    constexpr double any = 1e6;
    const WallLayout layout = layoutIn(QSizeF(width, any));
    return int(std::ceil(grid.rows * layout.cell.height() + layout.top));
}

WallLayout WallMap::layoutIn(const QSizeF &room) const
{
    return wallLayout(font(), room, m_model->grid(), m_model->longest(), largestCell);
}

QString WallMap::selectionText() const
{
    const auto cabinet = m_session->selectedCabinet();
    return cabinet && m_model->indexOf(*cabinet).isValid() ? m_model->briefly(*cabinet) : QString();
}

void WallMap::layOut()
{
    const WallGrid &grid = m_model->grid();
    if (grid.rows == 0) {
        return;
    }
    const WallLayout layout = layoutIn(size());
    m_columnNames->setRoom(layout.top, layout.edgeFont);
    m_rowNames->setRoom(layout.left, layout.edgeFont);
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
    share(horizontalHeader(), grid.columns, layout.cell.width());
    share(verticalHeader(), grid.rows, layout.cell.height());
    m_delegate->setFonts(layout.fonts);
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

void WallMap::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    const auto cabinet = m_session->selectedCabinet();
    const QModelIndex index = cabinet ? m_model->indexOf(*cabinet) : QModelIndex();
    if (index.isValid()) {
        QPainter painter(viewport());
        const QRectF cells(
            visualRect(m_model->index(0, 0))
                .united(visualRect(m_model->index(m_model->rowCount() - 1, m_model->columnCount() - 1))));
        paintWallSelection(&painter, visualRect(index), cells, palette());
    }
}

bool WallMap::eventFilter(QObject *watched, QEvent *event)
{
    return (event->type() == QEvent::Paint && qobject_cast<QAbstractButton *>(watched))
        || QTableView::eventFilter(watched, event);
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
    orNothing([this] {
        QPainter painter(this);
        paintWallLegend(&painter, rect(), m_scale, font(), palette());
    });
}

} // namespace gamutviewer
