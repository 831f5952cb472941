// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHARTPAGE_H
#define GAMUTVIEWER_CHARTPAGE_H

#include "drawing/diagramframe.h"
#include "drawing/gamutoverlay.h"
#include "window/page.h"

#include <QVector>

#include <memory>

namespace NewCEIE {
class CEIEGraphicsView;
}

namespace gamutviewer {

class DiagramKey;
class LayerRow;

/*! \brief The current chart, embedded as any host would, with a switch for each layer and gamut. */
class ChartPage : public Page {
    Q_OBJECT

public:
    ChartPage(Document *document, LayerSwitches *switches, QWidget *parent = nullptr);
    ~ChartPage() override;

    NewCEIE::CEIEGraphicsView *chart() const { return m_chart; }
    DiagramKey *key() const { return m_key; }
    /*! \brief Where on the chart's viewport the CIE 1931 chromaticity \a xy is shown. */
    QPointF viewportPosition(const QPointF &xy) const;

protected:
    void refresh() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit();
    /*! Pixels of the chart's picture for each of its view. */
    double pictureScale() const;
    QPointF chromaticityAt(const QPointF &position) const;

    LayerSwitches *m_switches;
    QVector<LayerRow *> m_rows;
    ChartBox *m_box;
    NewCEIE::CEIEGraphicsView *m_chart;
    DiagramKey *m_key;
    std::unique_ptr<GamutOverlay> m_overlay;
    DiagramFrame m_frame;
};

} // namespace gamutviewer

#endif
