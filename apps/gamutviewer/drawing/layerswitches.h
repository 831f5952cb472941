// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LAYERSWITCHES_H
#define GAMUTVIEWER_LAYERSWITCHES_H

#include "display/gamutfiles.h"

#include <ceiechart/diagram/diagramcontent.h>

#include <QHash>
#include <QObject>
#include <QSet>

namespace gamutviewer {

/*! \brief What of a description diagrams show: layers, standards and how the horseshoe is coloured. */
class LayerSwitches : public QObject {
    Q_OBJECT

public:
    /*! \brief What the switches say, as one value. */
    struct State {
        ceiechart::ShownLayers layers = ceiechart::allDiagramLayers;
        ceiechart::HorseshoeColors colors = ceiechart::HorseshoeColors::Dimmed;
        //! Of standards that were switched by hand; the others are shown when the description names them.
        QHash<QString, bool> standards;

        bool operator==(const State &other) const
        {
            return layers == other.layers && colors == other.colors && standards == other.standards;
        }
    };

    using QObject::QObject;

    const State &state() const { return m_state; }
    void setState(const State &state);

    bool isShown(ceiechart::DiagramLayer layer) const { return m_state.layers.testFlag(layer); }
    void setShown(ceiechart::DiagramLayer layer, bool shown);
    void setColors(ceiechart::HorseshoeColors colors);
    /*! \brief Whether the standard \a gamutName is shown of a description that names the standards \a named. */
    bool isStandardShown(const QString &gamutName, const QSet<QString> &named) const;
    void setStandardShown(const QString &gamutName, bool shown);
    /*! \brief Shows the standards that the description names, as for another description. */
    void forgetStandards();

    /*! \brief Whether a diagram shows the default target where nobody has chosen one; it does at first. */
    void setShowsDefaultTarget(bool shows) { m_showsDefaultTarget = shows; }

    /*! \brief What a diagram shows of \a description. */
    ceiechart::DiagramContent content(const DisplayDescription &description) const;
    /*! \brief \a content of \a description with the layers and colours of these switches. */
    ceiechart::DiagramContent withLayers(
        ceiechart::DiagramContent content, const DisplayDescription &description) const;

Q_SIGNALS:
    void changed();

private:
    State m_state;
    bool m_showsDefaultTarget = true;
};

} // namespace gamutviewer

#endif
