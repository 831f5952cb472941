// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHARTPAGE_H
#define GAMUTVIEWER_CHARTPAGE_H

#include "page.h"

class QCheckBox;
class QComboBox;

namespace NewCEIE {
class CEIEGraphicsView;
}

namespace gamutviewer {

/*! \brief The current chart, embedded as any host would, with a switch for each layer and gamut. */
class ChartPage : public Page {
    Q_OBJECT

public:
    explicit ChartPage(Document *document, QWidget *parent = nullptr);

    NewCEIE::CEIEGraphicsView *chart() const { return m_chart; }

protected:
    void refresh() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QCheckBox *addSwitch(QLayout *layout, const QString &text, const QString &explanation);
    void fit();
    QSize pictureRoom() const;
    bool isLegendBeside() const;
    QPointF chromaticityAt(const QPoint &position) const;

    NewCEIE::CEIEGraphicsView *m_chart;
    ChartBox *m_box;
    QCheckBox *m_axes;
    QCheckBox *m_standards;
    QCheckBox *m_original;
    QCheckBox *m_measured;
    QCheckBox *m_target;
    QCheckBox *m_common;
    QCheckBox *m_points;
    QComboBox *m_legendPlace;
    QSize m_pictureSize;
};

} // namespace gamutviewer

#endif
