// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_COMPAREPAGE_H
#define GAMUTVIEWER_COMPAREPAGE_H

#include "window/page.h"

class QLabel;

namespace gamutviewer {

class CopyTable;
class DocumentView;
class LayerSwitches;
class TargetSession;

/*! \brief Declared, original, measured and target side by side, and what the target gives up of the original. */
class ComparePage : public Page {
    Q_OBJECT

public:
    explicit ComparePage(TargetSession *session, QWidget *parent = nullptr);

    QString title() const override { return tr("&Compare"); }

    CopyTable *table() const { return m_table; }
    QLabel *loss() const { return m_loss; }

protected:
    void refresh() override;

private:
    void setCell(int row, int column, const QString &text);

    CopyTable *m_table;
    QLabel *m_loss;
    LayerSwitches *m_switches;
    DocumentView *m_xy;
    DocumentView *m_uv;
};

} // namespace gamutviewer

#endif
