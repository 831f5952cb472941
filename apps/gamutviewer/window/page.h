// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_PAGE_H
#define GAMUTVIEWER_PAGE_H

#include <QPointF>
#include <QWidget>

namespace gamutviewer {

class Document;

/*! \brief One view of the document. It follows the document while it is shown, and catches up when it comes up. */
class Page : public QWidget {
    Q_OBJECT

public:
    Page(Document *document, QWidget *parent);

    Document *document() const { return m_document; }

Q_SIGNALS:
    /*! \brief The pointer is over the CIE 1931 chromaticity \a xy. */
    void pointedAt(const QPointF &xy);
    void pointerLeft();

protected:
    /*! \brief Shows the document as it is now. */
    virtual void refresh() = 0;
    /*! \brief Calls refresh() now, or else when the page is shown next. */
    void refreshWhenShown();

    void showEvent(QShowEvent *event) override;

private:
    Document *m_document;
    bool m_stale = true;
};

/*! \brief Shows that what is inside of \a place has the keyboard. */
void paintFocusFrame(QPainter &painter, const QRect &place, const QPalette &palette);

/*! \brief The place of a chart in a page: says when its size changes, and keeps no minimum for the chart's sake. */
class ChartBox : public QWidget {
    Q_OBJECT

public:
    explicit ChartBox(QWidget *parent = nullptr);

    QSize sizeHint() const override { return QSize(560, 600); }
    QSize minimumSizeHint() const override { return QSize(240, 260); }

    /*! \brief What there is for a chart. */
    QSize room() const;
    /*! \brief Puts \a chart into the middle of the upper edge. */
    void place(QWidget *chart);
    /*! \brief Frames the chart while \a view, which is part of it, has the keyboard. */
    void showFocusOf(QWidget *view);

Q_SIGNALS:
    void resized();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_view = nullptr;
    QRect m_place;
};

} // namespace gamutviewer

#endif
