// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DIAGRAMKEY_H
#define GAMUTVIEWER_DIAGRAMKEY_H

#include "drawing/layers.h"

#include <QBrush>
#include <QPen>
#include <QString>
#include <QVector>
#include <QWidget>

class QRectF;

namespace gamutviewer {

struct DisplayDescription;

/*! \brief What something on a diagram looks like, and what it is. */
struct KeyEntry {
    enum class Shape { Line, Area, Disc };

    QString name;
    Shape shape = Shape::Line;
    QPen pen;
    QBrush fill;
    QColor edge; //!< round a line; none when invalid
};

/*! \brief The look of the library's pictures, or that of the lines that the program puts over a bare one. */
enum class KeyStyle { Picture, Overlay };

/*! \brief What a chart of \a description shows when the layers \a shown are on, in the language of the interface. */
QVector<KeyEntry> keyEntries(const DisplayDescription &description, Layers shown, KeyStyle style);

void paintKeySample(QPainter &painter, const QRectF &place, const KeyEntry &entry);

/*! \brief The key below a diagram: samples and names, in as many lines as they need. */
class DiagramKey : public QWidget {
    Q_OBJECT

public:
    explicit DiagramKey(QWidget *parent = nullptr);

    const QVector<KeyEntry> &entries() const { return m_entries; }
    /*! \brief Shows \a entries, with samples on \a ground, or on none when that is invalid. */
    void setEntries(const QVector<KeyEntry> &entries, const QColor &ground = QColor());

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int entryWidth(const KeyEntry &entry) const;
    int lineHeight() const;
    /*! The entries of each line. */
    QVector<QVector<KeyEntry>> lines(int width) const;
    int lineWidth(const QVector<KeyEntry> &line) const;

    QVector<KeyEntry> m_entries;
    QColor m_ground;
};

} // namespace gamutviewer

#endif
