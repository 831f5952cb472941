// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LENSWIDGET_H
#define GAMUTVIEWER_LENSWIDGET_H

#include "editing/gamutparts.h"

#include <QPolygonF>
#include <QWidget>

namespace gamutviewer {

/*!
 * \brief A close look at the target's white on CIE 1976 u', v': Planckian locus, isotherms with their temperatures,
 * the whites of all gamuts in shapes of their own, rings of equal distance and the trail of the last edits.
 *
 * The wheel and the keys + and - zoom; 0 shows all whites again.
 */
class LensWidget : public QWidget {
    Q_OBJECT

public:
    explicit LensWidget(QWidget *parent = nullptr);

    void setWhites(const QVector<GamutPart> &parts, const QVector<QPointF> &trail);
    /*! \brief Multiplies what is seen by \a factor: below 1 it is closer. */
    void zoom(double factor);
    void showAll();
    /*! \brief Half of what the shorter side shows, in u', v'. */
    double reach() const { return m_reach; }

    QSize sizeHint() const override { return QSize(520, 520); }
    QSize minimumSizeHint() const override { return QSize(240, 240); }

Q_SIGNALS:
    /*! \brief The pointer is over the CIE 1931 chromaticity \a xy. */
    void pointedAt(const QPointF &xy);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct White {
        GamutPart::Role role;
        QString name;
        QPointF xy;
        QPointF uv;
    };

    double pixelsPerUnit() const;
    QPointF place(const QPointF &uv) const;
    QPointF uvAt(const QPointF &position) const;
    const White *target() const;

    QVector<QRectF> marked() const;
    QRectF ringLabelBox(double radius) const;

    void drawGrid(QPainter &painter) const;
    void drawAxisNames(QPainter &painter) const;
    void drawLocus(QPainter &painter) const;
    void drawIsotherms(QPainter &painter) const;
    static QString whiteText(const White &white);
    QStringList keyLines() const;
    QRectF keyBox() const;
    void drawRings(QPainter &painter) const;
    void drawTrail(QPainter &painter) const;
    void drawWhites(QPainter &painter) const;
    void drawKey(QPainter &painter) const;

    QVector<White> m_whites;
    QVector<QPointF> m_trail; // u', v'
    QPointF m_centre{0.1978, 0.4683};
    double m_reach = 0.01;
    bool m_showsAll = true;
};

} // namespace gamutviewer

#endif
