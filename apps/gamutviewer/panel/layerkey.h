// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LAYERKEY_H
#define GAMUTVIEWER_LAYERKEY_H

#include "drawing/layerswitches.h"
#include "editing/gamutparts.h"

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

    //! What the entries are made of.
    struct Built {
        QVector<GamutPart> parts; // in their order here
        QStringList titles; // of the parts
        QStringList standards; // their names
        QVector<bool> hasPoints; // of each kind
    };

    Built wanted() const;
    void build(const Built &wanted);
    //! Makes the entries those of \a wanted: where little is another, by changing that alone. Whether any was another.
    bool change(const Built &wanted);
    //! Whether so few of the standards are others than \a names that they have been changed one by one.
    bool changeStandards(const QStringList &names);
    void refresh();
    void refreshChecks();
    void measure();
    void addSection(const QString &title);
    void addColors();
    //! At \a row, or as the last one.
    QListWidgetItem *addEntry(ceiechart::DiagramLayer layer, std::optional<ceiechart::GamutRole> role, int row = -1);
    void fillEntry(QListWidgetItem *entry, const QString &name, const QString &detail = QString()) const;
    void fillPart(QListWidgetItem *entry, const GamutPart &part) const;
    void addStandard(const QString &name, int row = -1);
    //! The standards that the description names.
    QSet<QString> namedStandards() const;
    bool isShown(const QListWidgetItem *entry, const QSet<QString> &named) const;
    void toggle(QListWidgetItem *entry);
    void showAlone(const QListWidgetItem *entry);

    Document *m_document;
    LayerSwitches *m_switches;
    QButtonGroup *m_colors;
    std::optional<Built> m_built;
    int m_builtVersion = 0; // of the document
    QListWidgetItem *m_pressed = nullptr;
    std::optional<Click> m_click; // the last one, until the entries change
    AloneOfKind m_alone;
    int m_width = 0; // pixels that the widest entry takes
    bool m_isMeasured = false; // or the entries are others since
};

} // namespace gamutviewer

#endif
