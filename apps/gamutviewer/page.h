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

/*! \brief The place of a chart in a page: says when its size changes, and keeps no minimum for the chart's sake. */
class ChartBox : public QWidget {
    Q_OBJECT

public:
    explicit ChartBox(QWidget *parent = nullptr);

    QSize sizeHint() const override { return QSize(560, 600); }
    QSize minimumSizeHint() const override { return QSize(240, 260); }

    /*! \brief Puts \a chart into the middle of the upper edge. */
    void place(QWidget *chart);

Q_SIGNALS:
    void resized();

protected:
    void resizeEvent(QResizeEvent *event) override;
};

} // namespace gamutviewer

#endif
