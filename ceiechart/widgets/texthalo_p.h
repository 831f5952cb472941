// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_TEXTHALO_P_H
#define CEIECHART_WIDGETS_TEXTHALO_P_H

#include <QColor>
#include <QGraphicsEffect>

namespace ceiechart {

/*! \brief Surrounds the text of a label by a colour, so that it is legible over lines and marks of other colours. */
class TextHalo : public QGraphicsEffect {
public:
    explicit TextHalo(QObject *parent);

    void setColor(const QColor &color);

    QRectF boundingRectFor(const QRectF &rect) const override;

protected:
    void draw(QPainter *painter) override;

private:
    QColor m_color;
};

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_TEXTHALO_P_H
