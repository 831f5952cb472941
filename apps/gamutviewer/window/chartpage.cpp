// SPDX-License-Identifier: MIT
#include "window/chartpage.h"

#include "drawing/diagramkey.h"
#include "drawing/gamutcolors.h"
#include "drawing/pointerevent.h"
#include "editing/document.h"
#include "panel/layerrow.h"

#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QVBoxLayout>

#include <algorithm>

namespace gamutviewer {

namespace {

// The scene of the chart is 672 x 728 pixels: pictures of 12:13 fill it, and above its height it is not enlarged.
constexpr int widthParts = 12;
constexpr int heightParts = 13;
constexpr int mostPixelsPerPart = 56;
constexpr int fewestPixelsPerPart = 8;

} // namespace

ChartPage::ChartPage(Document *document, LayerSwitches *switches, QWidget *parent)
    : Page(document, parent)
    , m_switches(switches)
{
    auto *layout = new QVBoxLayout(this);
    const QVector<QVector<Layer>> rows{
        {Layer::Original, Layer::Measured, Layer::Declared, Layer::Target, Layer::Standards},
        {Layer::CommonArea, Layer::Axes}, {Layer::MeasurePoints, Layer::ColorTemperaturePoints, Layer::CmyPoints}};
    for (const QVector<Layer> &row : rows) {
        m_rows.append(new LayerRow(switches, row, this));
        layout->addWidget(m_rows.last());
    }
    m_box = new ChartBox(this);
    layout->addWidget(m_box, 1);
    m_key = new DiagramKey(this);
    layout->addWidget(m_key);
    m_chart = new NewCEIE::CEIEGraphicsView(m_box);
    m_chart->view()->setAccessibleName(tr("Chromaticity diagram, CIE 1931 x, y"));
    m_chart->view()->viewport()->setMouseTracking(true);
    m_chart->view()->viewport()->installEventFilter(this);
    m_chart->setUseMouseOpertator(false);
    m_chart->getLegend()->hide();
    m_overlay = std::make_unique<GamutOverlay>(m_chart->view()->scene());
    m_box->showFocusOf(m_chart->view());
    setFocusProxy(m_chart->view());

    connect(m_box, &ChartBox::resized, this, &ChartPage::refreshWhenShown);
    connect(switches, &LayerSwitches::changed, this, &ChartPage::refreshWhenShown);
}

ChartPage::~ChartPage() = default;

void ChartPage::fit()
{
    const QSize room = m_box->room();
    const int pixels = std::clamp(
        std::min(room.width() / widthParts, room.height() / heightParts), fewestPixelsPerPart, mostPixelsPerPart);
    const QSize shown(pixels * widthParts, pixels * heightParts);
    // A picture with a pixel for each pixel of the screen, which the chart scales into its inner view. Below the size
    // that the chart is made for, the numbers of the axes would leave their margin.
    const QSize picture = (shown * devicePixelRatioF()).expandedTo(QSize(widthParts, heightParts) * mostPixelsPerPart);
    if (picture != m_frame.size()) {
        m_frame = DiagramFrame(Model::Diagram::Cie1931, picture);
        m_chart->setImageWidth(picture.width());
        m_chart->setImageHeight(picture.height());
    }
    m_chart->view()->setFixedSize(shown);
    m_chart->layout()->activate();
    m_box->place(m_chart);
}

void ChartPage::refresh()
{
    const DisplayDescription &description = document()->description();
    const Layers available = layersOf(description);
    const Layers shown = m_switches->shown();
    const auto original = document()->original();
    const auto measured = document()->measured();
    const auto target = document()->target();
    for (LayerRow *row : qAsConst(m_rows)) {
        row->setAvailable(available);
    }
    m_key->setEntries(keyEntries(description, shown, KeyStyle::Picture), chartGround(Model::Diagram::Cie1931));
    fit();

    m_chart->setIsDrawCoordinate(shown.testFlag(Layer::Axes));
    m_chart->setIsShowStandard(shown.testFlag(Layer::Standards));
    m_chart->setIsShowOriginal(shown.testFlag(Layer::Original) && original);
    m_chart->setIsShowMeasure(shown.testFlag(Layer::Measured));
    m_chart->setIsShowTarget(shown.testFlag(Layer::Target) && target);
    m_chart->setIsShowActual((shown & available).testFlag(Layer::CommonArea));
    m_chart->setCMYPointData(
        shown.testFlag(Layer::CmyPoints) ? positions(description.cmyPoints).toList() : QList<QPointF>());

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
    m_overlay->showOnChart(description, shown, m_frame, pictureScale());
}

double ChartPage::pictureScale() const
{
    return double(m_frame.size().width()) / m_chart->view()->width();
}

QPointF ChartPage::viewportPosition(const QPointF &xy) const
{
    return m_frame.fromXy(xy) / pictureScale();
}

QPointF ChartPage::chromaticityAt(const QPointF &position) const
{
    return m_frame.toXy(position * pictureScale());
}

bool ChartPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseMove) {
        Q_EMIT pointedAt(chromaticityAt(pointerPosition(*static_cast<QMouseEvent *>(event))));
    } else if (event->type() == QEvent::Leave) {
        Q_EMIT pointerLeft();
    }
    return Page::eventFilter(watched, event);
}

} // namespace gamutviewer
