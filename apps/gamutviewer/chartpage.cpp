// SPDX-License-Identifier: MIT
#include "chartpage.h"

#include "document.h"

#include <ceiechart/render/diagramgeometry.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

// The scene of the chart is 672 x 728 pixels: pictures of 12:13 fill it, and above its height it is not enlarged.
constexpr int widthParts = 12;
constexpr int heightParts = 13;
constexpr int mostPixelsPerPart = 56;
constexpr int fewestPixelsPerPart = 8;

constexpr int marginPercent = 5; // around the chart's plot
constexpr ceiechart::ChromaRange shownRange{0.0F, 0.84F, 0.0F, 0.94F};

QList<QPointF> positions(const QVector<NamedPoint> &points)
{
    QList<QPointF> result;
    for (const NamedPoint &point : points) {
        result.append(point.xy);
    }
    return result;
}

QHBoxLayout *addRow(QBoxLayout *layout)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    layout->addLayout(row);
    return row;
}

} // namespace

ChartPage::ChartPage(Document *document, QWidget *parent)
    : Page(document, parent)
{
    auto *layout = new QVBoxLayout(this);
    QHBoxLayout *gamuts = addRow(layout);
    m_original = addSwitch(gamuts, tr("&Original"), tr("Show the original gamut"));
    m_measured = addSwitch(gamuts, tr("&Measured"), tr("Show the measured gamut"));
    m_target = addSwitch(gamuts, tr("&Target"), tr("Show the target gamut"));
    m_standards = addSwitch(gamuts, tr("&Standards"), tr("Show the standard gamuts"));
    gamuts->addStretch();
    QHBoxLayout *layers = addRow(layout);
    m_common = addSwitch(layers, tr("&Common area"), tr("Colour the area that target and original have in common"));
    m_axes = addSwitch(layers, tr("&Axes"), tr("Show axes and grid"));
    m_points = addSwitch(layers, tr("CM&Y points"), tr("Show the points of cyan, magenta and yellow"));
    layers->addStretch();
    m_legendPlace = new QComboBox(this);
    m_legendPlace->addItem(tr("below"), int(Qt::AlignBottom));
    m_legendPlace->addItem(tr("beside"), int(Qt::AlignRight));
    auto *legendLabel = new QLabel(tr("&Legend"), this);
    legendLabel->setBuddy(m_legendPlace);
    layers->addWidget(legendLabel);
    layers->addWidget(m_legendPlace);

    m_box = new ChartBox(this);
    layout->addWidget(m_box, 1);
    m_chart = new NewCEIE::CEIEGraphicsView(m_box);
    m_chart->view()->setAccessibleName(tr("Chromaticity diagram, CIE 1931 x, y"));
    m_chart->view()->viewport()->setMouseTracking(true);
    m_chart->view()->viewport()->installEventFilter(this);
    m_chart->setUseMouseOpertator(false);

    connect(m_box, &ChartBox::resized, this, &ChartPage::refreshWhenShown);
    connect(m_legendPlace, QOverload<int>::of(&QComboBox::activated), this, [this] {
        m_chart->setLegendAlignament(Qt::Alignment(m_legendPlace->currentData().toInt()));
        refreshWhenShown();
    });
}

QCheckBox *ChartPage::addSwitch(QLayout *layout, const QString &text, const QString &explanation)
{
    auto *box = new QCheckBox(text, this);
    box->setToolTip(explanation);
    box->setAccessibleDescription(explanation);
    box->setChecked(true);
    connect(box, &QCheckBox::toggled, this, &ChartPage::refreshWhenShown);
    layout->addWidget(box);
    return box;
}

bool ChartPage::isLegendBeside() const
{
    return m_legendPlace->currentData().toInt() == Qt::AlignRight;
}

QSize ChartPage::pictureRoom() const
{
    const QSize legend = m_chart->getLegend()->sizeHint();
    return m_box->size() - (isLegendBeside() ? QSize(legend.width(), 0) : QSize(0, legend.height()));
}

void ChartPage::fit()
{
    const QSize room = pictureRoom();
    const int pixels = std::clamp(
        std::min(room.width() / widthParts, room.height() / heightParts), fewestPixelsPerPart, mostPixelsPerPart);
    const QSize shown(pixels * widthParts, pixels * heightParts);
    // A picture with a pixel for each pixel of the screen, which the chart scales into its inner view. Below the size
    // that the chart is made for, the numbers of the axes would leave their margin.
    const QSize picture = (shown * devicePixelRatioF()).expandedTo(QSize(widthParts, heightParts) * mostPixelsPerPart);
    if (picture != m_pictureSize) {
        m_pictureSize = picture;
        m_chart->setImageWidth(picture.width());
        m_chart->setImageHeight(picture.height());
    }
    m_chart->view()->setFixedSize(shown);
    m_chart->layout()->activate();
    m_box->place(m_chart);
}

void ChartPage::refresh()
{
    fit();
    const DisplayDescription &description = document()->description();
    const auto original = document()->original();
    const auto measured = document()->measured();
    const auto target = document()->target();
    m_measured->setEnabled(measured.has_value());

    m_chart->setIsDrawCoordinate(m_axes->isChecked());
    m_chart->setIsShowStandard(m_standards->isChecked());
    m_chart->setIsShowOriginal(m_original->isChecked() && original);
    m_chart->setIsShowMeasure(m_measured->isChecked());
    m_chart->setIsShowTarget(m_target->isChecked() && target);
    m_chart->setIsShowActual(m_common->isChecked() && original && target);
    m_chart->setLsColorTempertureValuePoints(positions(description.colorTemperaturePoints));
    m_chart->setOtherPoints(positions(description.measurePoints), {});
    m_chart->setCMYPointData(m_points->isChecked() ? positions(description.cmyPoints) : QList<QPointF>());

    QList<Model::ColorGamut> standards;
    for (const QString &name : description.standards) {
        if (const auto standard = description.gamut(name)) {
            standards.append(*standard);
        }
    }
    const Model::ColorGamut none;
    if (measured) {
        m_chart->setColorGamut(target.value_or(none), original.value_or(none), *measured, standards);
    } else {
        m_chart->setColorGamut(target.value_or(none), original.value_or(none), standards);
    }
}

QPointF ChartPage::chromaticityAt(const QPoint &position) const
{
    ceiechart::DiagramGeometry geometry;
    geometry.setPicture(m_pictureSize.width(), m_pictureSize.height(), marginPercent, shownRange);
    const double scale = double(m_pictureSize.width()) / m_chart->view()->width();
    return geometry.toChroma(position.x() * scale, position.y() * scale);
}

bool ChartPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseMove) {
        Q_EMIT pointedAt(chromaticityAt(static_cast<QMouseEvent *>(event)->pos()));
    } else if (event->type() == QEvent::Leave) {
        Q_EMIT pointerLeft();
    }
    return Page::eventFilter(watched, event);
}

} // namespace gamutviewer
