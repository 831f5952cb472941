// SPDX-License-Identifier: MIT
#include "panel/layerrow.h"

#include <QCheckBox>
#include <QHBoxLayout>

namespace gamutviewer {

LayerRow::LayerRow(LayerSwitches *switches, const QVector<Layer> &layers, QWidget *parent)
    : QWidget(parent)
    , m_switches(switches)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    for (const Layer layer : layers) {
        QCheckBox *box = makeBox(layer);
        layout->addWidget(box);
        m_boxes.insert(layer, box);
        connect(box, &QCheckBox::toggled, switches, [switches, layer](bool on) { switches->setShown(layer, on); });
    }
    layout->addStretch();
    connect(switches, &LayerSwitches::changed, this, &LayerRow::refresh);
    refresh();
}

QCheckBox *LayerRow::makeBox(Layer layer)
{
    const auto make = [this](const QString &text, const QString &explanation) {
        auto *box = new QCheckBox(text, this);
        box->setToolTip(explanation);
        box->setAccessibleDescription(explanation);
        return box;
    };
    switch (layer) {
    case Layer::Original:
        return make(tr("&Original"), tr("Show the original gamut"));
    case Layer::Measured:
        return make(tr("&Measured"), tr("Show the measured gamut"));
    case Layer::Declared:
        return make(tr("&Declared"), tr("Show the gamut that the display declares"));
    case Layer::Target:
        return make(tr("&Target"), tr("Show the target gamut"));
    case Layer::Standards:
        return make(tr("&Standards"), tr("Show the standard gamuts"));
    case Layer::CommonArea:
        return make(tr("&Common area"), tr("Colour the common area of target and original"));
    case Layer::Axes:
        return make(tr("&Axes"), tr("Show axes and grid"));
    case Layer::Wavelengths:
        return make(tr("&Wavelengths"), tr("Show wavelengths along the spectral locus, in nanometres"));
    case Layer::PlanckianLocus:
        return make(tr("Planc&kian locus"), tr("Show the Planckian locus, the chromaticities of black bodies"));
    case Layer::MeasurePoints:
        return make(tr("Meas&ured points"), tr("Show the other measured colours"));
    case Layer::ColorTemperaturePoints:
        return make(tr("CCT po&ints"), tr("Show the colour-temperature points"));
    case Layer::CmyPoints:
        break;
    }
    return make(tr("CM&Y points"), tr("Show the cyan, magenta and yellow points"));
}

void LayerRow::setAvailable(Layers available)
{
    for (auto box = m_boxes.cbegin(); box != m_boxes.cend(); ++box) {
        box.value()->setEnabled(available.testFlag(box.key()));
    }
}

void LayerRow::refresh()
{
    for (auto box = m_boxes.cbegin(); box != m_boxes.cend(); ++box) {
        box.value()->setChecked(m_switches->shown().testFlag(box.key()));
    }
}

} // namespace gamutviewer
