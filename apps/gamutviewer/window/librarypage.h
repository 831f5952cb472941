// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LIBRARYPAGE_H
#define GAMUTVIEWER_LIBRARYPAGE_H

#include "window/page.h"

class CEIEGraphicsView;
class QScrollArea;
namespace NewCEIE {
class CEIEGraphicsView;
}

namespace gamutviewer {

class SignalLog;

/*!
 * \brief The library's charts of both generations as they come, embedded as a host would, with a log of their signals.
 *
 * The document is handed to them, except for its measure points, which they do not show; what is moved in them is
 * logged only. The charts are as large as there is room, and have legends where those fit.
 */
class LibraryPage : public Page {
    Q_OBJECT

public:
    explicit LibraryPage(Document *document, QWidget *parent = nullptr);

    QString title() const override { return tr("Library char&ts"); }
    Picture picture() const override;

    NewCEIE::CEIEGraphicsView *currentChart() const { return m_current; }
    CEIEGraphicsView *legacyChart() const { return m_legacy; }
    SignalLog *log() const { return m_log; }

protected:
    void refresh() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fillRoom();

    NewCEIE::CEIEGraphicsView *m_current;
    CEIEGraphicsView *m_legacy;
    SignalLog *m_log;
    QScrollArea *m_area; // for the charts, where there is too little room
};

} // namespace gamutviewer

#endif
