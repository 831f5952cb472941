// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LAYERROW_H
#define GAMUTVIEWER_LAYERROW_H

#include "drawing/layers.h"

#include <QMap>
#include <QVector>
#include <QWidget>

class QCheckBox;

namespace gamutviewer {

/*! \brief A row of switches for layers. */
class LayerRow : public QWidget {
    Q_OBJECT

public:
    LayerRow(LayerSwitches *switches, const QVector<Layer> &layers, QWidget *parent);

    /*! \brief Those that are not \a available can be switched to no effect, and not at all. */
    void setAvailable(Layers available);
    /*! \brief The switch for \a layer; null when the row has none. */
    QCheckBox *box(Layer layer) const { return m_boxes.value(layer); }

private:
    QCheckBox *makeBox(Layer layer);
    void refresh();

    LayerSwitches *m_switches;
    QMap<Layer, QCheckBox *> m_boxes;
};

} // namespace gamutviewer

#endif
