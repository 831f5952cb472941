// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CEIEGRAPHICSVIEW_P_H
#define CEIECHART_WIDGETS_CEIEGRAPHICSVIEW_P_H

#include <ceiechart/model/gamutkind.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/widgets/ceiegraphicsview.h>
#include <ceiechart/widgets/chartframe_p.h>

class QLabel;

namespace NewCEIE {

/*! \brief The gamuts and switches that the current chart keeps in addition. */
class Q_DECL_HIDDEN CEIEGraphicsView::Private : public ceiechart::ChartFrame::Private {
public:
    /*! \brief The scene; null if a host has deleted it. */
    CEIEGraphicsScene *typedScene() const { return static_cast<CEIEGraphicsScene *>(scene.data()); }

    /*! \brief Removes all gamuts and adds those of \a standards that the chart shows. */
    void beginGamuts(const QList<Model::ColorGamut> &standards);
    /*! \brief Adds \a triangle to the list of gamuts, in the style of its kind. */
    void addGamut(const TrianglePoint &triangle, ceiechart::GamutKind kind, bool besideMeasured);
    /*! \brief Adds the target gamut, if it is switched on. */
    void addTarget(const Model::ColorGamut &target, const TrianglePoint &triangle, bool besideMeasured);

    void groundChanged() override { colorMessage(); }
    void sizeChanged() override;
    /*! \brief Puts the message into the middle of the picture. */
    void placeMessage();
    /*!
     * \brief Gives the message a colour that is legible over the picture, also where the picture has numbers and discs.
     * The text color of a style sheet of the host prevails.
     */
    void colorMessage();

    QList<ColorTriangleObject> standardTriangles;
    TrianglePoint targetTriangle;
    TrianglePoint originalTriangle;
    QLabel *mixInfoLabel = nullptr;
    bool showStandard = true;
    bool showTarget = true;
    bool showOriginal = true;
    bool showActual = true;
    bool showMeasure = true;
};

} // namespace NewCEIE

#endif // CEIECHART_WIDGETS_CEIEGRAPHICSVIEW_P_H
