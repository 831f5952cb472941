// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LAYERKEY_H
#define GAMUTVIEWER_LAYERKEY_H

#include "drawing/layerswitches.h"

#include <QListWidget>

#include <array>
#include <optional>

class QButtonGroup;

namespace gamutviewer {

class Document;

/*!
 * \brief The key of diagrams, which is the switch of their layers: each gamut with its line as drawn, its name and its
 * role, then the standards, then all other layers.
 *
 * A click or Space switches an entry. A double click or Return shows it alone of its kind, a gamut among gamuts or a
 * layer among layers, and once more brings the others back. The key keeps its width when the target is edited, so that
 * the diagram beside it does not change its size under the pointer.
 */
class LayerKey : public QListWidget {
    Q_OBJECT

public:
    LayerKey(Document *document, LayerSwitches *switches, QWidget *parent = nullptr);

    /*! \brief The entry called \a name; null without one. */
    QListWidgetItem *entry(const QString &name) const;
    /*! \brief Chooses the colours of the horseshoe: full, dimmed, none. */
    QButtonGroup *colors() const { return m_colors; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return QSize(sizeHint().width(), 120); }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    //! What was shown before an entry was shown alone.
    struct Alone {
        ceiechart::DiagramLayer layer; // of the entry
        QString standard; // its name among the standards
        LayerSwitches::State before;
    };
    //! For gamuts and for layers.
    using AloneOfKind = std::array<std::optional<Alone>, 2>;
    //! What a click has changed.
    struct Click {
        LayerSwitches::State before;
        AloneOfKind alone;
    };

    void build();
    void refresh();
    void measure();
    void addSection(const QString &title);
    void addColors();
    QListWidgetItem *addEntry(const QString &name, const QString &detail, std::optional<ceiechart::GamutRole> role,
        ceiechart::DiagramLayer layer);
    //! The standards that the description names.
    QSet<QString> namedStandards() const;
    bool isShown(const QListWidgetItem *entry, const QSet<QString> &named) const;
    void toggle(QListWidgetItem *entry);
    void showAlone(const QListWidgetItem *entry);

    Document *m_document;
    LayerSwitches *m_switches;
    QButtonGroup *m_colors;
    QStringList m_built; // what the entries are made of
    QListWidgetItem *m_pressed = nullptr;
    std::optional<Click> m_click; // the last one, until the entries change
    AloneOfKind m_alone;
    int m_width = 0; // pixels that the widest entry takes
    bool m_isMeasured = false; // or the entries are others since
};

} // namespace gamutviewer

#endif
