// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_COMPAREPAGE_H
#define GAMUTVIEWER_COMPAREPAGE_H

#include "editing/gamutparts.h"
#include "window/page.h"

#include <gamutmodel/gamutcoverage.h>

class QLabel;
class QTableWidget;

namespace gamutviewer {

class DiagramKey;
class GamutDiagram;

/*! \brief Declared, original, measured and target side by side, and what the target gives up of the original. */
class ComparePage : public Page {
    Q_OBJECT

public:
    explicit ComparePage(Document *document, QWidget *parent = nullptr);

    QTableWidget *table() const { return m_table; }
    QLabel *loss() const { return m_loss; }

protected:
    void refresh() override;

private:
    void setCell(int row, int column, const QString &text);

    QTableWidget *m_table;
    QLabel *m_loss;
    GamutDiagram *m_xy;
    GamutDiagram *m_uv;
    DiagramKey *m_key;
};

/*!
 * \brief The share of \a original's area on \a diagram that \a target does not contain, 0 to 1; 0 for an original
 * without area.
 */
double lostShare(const Model::Targets &original, const Model::Targets &target, Model::Diagram diagram);

} // namespace gamutviewer

#endif
