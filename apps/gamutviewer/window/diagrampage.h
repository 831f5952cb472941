// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DIAGRAMPAGE_H
#define GAMUTVIEWER_DIAGRAMPAGE_H

#include "editing/targetedits.h"
#include "window/page.h"

class QAction;
class QActionGroup;
class QHBoxLayout;

namespace gamutviewer {

class DocumentView;
class LayerKey;
class LayerSwitches;
class Lens;
class TargetSession;

/*!
 * \brief The diagram to look at and to work on: the key, which is the switch of its layers, the diagram as large as
 * there is room, and in its free corner a close look at the white point.
 *
 * The page's actions are those of its buttons: which diagram, and which part of it.
 */
class DiagramPage : public Page {
    Q_OBJECT

public:
    explicit DiagramPage(TargetSession *session, QWidget *parent = nullptr);

    QString title() const override { return tr("&Diagram"); }
    QStringList hints() const override;
    Picture picture() const override;

    DocumentView *view() const { return m_view; }
    Lens *lens() const { return m_lens; }
    LayerKey *key() const { return m_key; }
    LayerSwitches *switches() const { return m_switches; }
    /*! \brief Chooses the diagram; its actions carry a ceiechart::DiagramView::DiagramKind. */
    QActionGroup *diagrams() const { return m_diagrams; }
    QAction *lensAction() const { return m_lensAction; }

protected:
    void refresh() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildBar(QHBoxLayout *bar);
    QAction *addButton(QHBoxLayout *bar, const QString &text, const QString &explanation);
    void placeLens();
    /*! \brief Brings \a vertex of the target into the middle, closely. */
    void showVertex(gamutviewer::Vertex vertex);
    /*! \brief Shows the lens when it is switched on and closer than the diagram, and not over what is being moved. */
    void showLens();

    LayerSwitches *m_switches;
    LayerKey *m_key;
    QWidget *m_stage; // what the diagram fills and the lens lies on
    DocumentView *m_view;
    Lens *m_lens;
    QActionGroup *m_diagrams;
    QAction *m_lensAction;
};

} // namespace gamutviewer

#endif
