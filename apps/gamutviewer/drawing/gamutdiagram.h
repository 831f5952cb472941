// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTDIAGRAM_H
#define GAMUTVIEWER_GAMUTDIAGRAM_H

#include "editing/gamutparts.h"

#include <gamutmodel/gamutcoverage.h>

#include <QPainterPath>
#include <QWidget>

namespace gamutviewer {

/*! \brief The line of each part's gamut: a style of its own beside a colour, for every palette. */
QPen partPen(GamutPart::Role role, const QPalette &palette);

/*! \brief A small outline diagram of gamuts, on which the area that the target gives up of the original is hatched. */
class GamutDiagram : public QWidget {
    Q_OBJECT

public:
    explicit GamutDiagram(Model::Diagram diagram, QWidget *parent = nullptr);

    void setParts(const QVector<GamutPart> &parts);

    QSize sizeHint() const override { return QSize(300, 320); }
    QSize minimumSizeHint() const override { return QSize(160, 170); }

Q_SIGNALS:
    /*! \brief The pointer is over the CIE 1931 chromaticity \a xy. */
    void pointedAt(const QPointF &xy);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QTransform placement() const;
    QPainterPath triangle(const Model::ColorGamut &gamut) const;
    QPainterPath lostArea() const;

    Model::Diagram m_diagram;
    QVector<GamutPart> m_parts;
    QPainterPath m_locus; // in the diagram's coordinates
};

} // namespace gamutviewer

#endif
