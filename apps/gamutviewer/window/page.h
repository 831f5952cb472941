// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_PAGE_H
#define GAMUTVIEWER_PAGE_H

#include "drawing/picture.h"

#include <QPointF>
#include <QStringList>
#include <QWidget>

namespace ceiechart {
class DiagramView;
}

namespace gamutviewer {

class Document;

/*! \brief One view of the document. It follows the document while it is shown, and catches up when it comes up. */
class Page : public QWidget {
    Q_OBJECT

public:
    Page(Document *document, QWidget *parent);

    Document *document() const { return m_document; }

    /*! \brief What the page is called, with a mnemonic. */
    virtual QString title() const = 0;
    /*! \brief What hands and modifiers do on the page, in a few words and then in fewer; empty for nothing. */
    virtual QStringList hints() const { return QStringList(); }
    /*! \brief What is exported and copied while the page is shown; all of the document unless the page says more. */
    virtual Picture picture() const;

Q_SIGNALS:
    /*! \brief The pointer is over the CIE 1931 chromaticity \a xy, which is told apart in so many \a decimals. */
    void pointedAt(const QPointF &xy, int decimals);
    void pointerLeft();

protected:
    /*! \brief Shows the document as it is now. */
    virtual void refresh() = 0;
    /*! \brief Calls refresh() now, or else when the page is shown next. */
    void refreshWhenShown();

    /*! \brief Passes on what the pointer is over in \a view. */
    void readOut(const ceiechart::DiagramView *view);

    /*!
     * \brief Where the focus goes that the page is given.
     *
     * Not by a focus proxy: with one, Tab would go from what is before the page to \a inside, past what precedes it.
     */
    void setFocusInside(QWidget *inside) { m_inside = inside; }

    void showEvent(QShowEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    Document *m_document;
    QWidget *m_inside = nullptr;
    bool m_stale = true;
};

} // namespace gamutviewer

#endif
