// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DOCUMENTVIEW_H
#define GAMUTVIEWER_DOCUMENTVIEW_H

#include "drawing/targetview.h"

#include <optional>

namespace gamutviewer {

class LayerSwitches;

/*! \brief A diagram of the session's document, on which the target is edited. */
class DocumentView : public TargetView {
    Q_OBJECT

public:
    DocumentView(TargetSession *session, const LayerSwitches *switches, QWidget *parent = nullptr);

    /*!
     * \brief Shows the document as it is now.
     *
     * \param alike a view with the same standards, which may show it already; then its gamuts are taken. May be null.
     */
    void refresh(const DocumentView *alike = nullptr);

private:
    QVector<ceiechart::DiagramRings> rings() const;

    const LayerSwitches *m_switches;
    std::optional<int> m_shownVersion; // of the document; nothing where the switches have changed since
};

} // namespace gamutviewer

#endif
