// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagrampainter.h>

namespace ceiechart {

const DiagramPalette &diagramPalette(DiagramGround ground)
{
    static const DiagramPalette light{
        QColor(252, 252, 253), // ground
        QColor(20, 30, 50, 26), // grid
        QColor(116, 122, 134), // frame
        QColor(32, 35, 42), // text
        QColor(92, 98, 110), // numbers
        QColor(44, 48, 56), // locus
        QColor(24, 26, 30), // planckian
        QColor(40, 44, 52, 190), // hatch
        QColor(255, 255, 255, 240), // casing
        QColor(59, 91, 219), // accent
    };
    static const DiagramPalette dark{
        QColor(27, 28, 32), // ground
        QColor(225, 232, 245, 30), // grid
        QColor(128, 134, 146), // frame
        QColor(236, 238, 242), // text
        QColor(172, 178, 190), // numbers
        QColor(214, 218, 226), // locus
        QColor(245, 246, 248), // planckian
        QColor(228, 231, 236, 190), // hatch
        QColor(20, 21, 24, 238), // casing
        QColor(116, 143, 252), // accent
    };
    return ground == DiagramGround::Dark ? dark : light;
}

} // namespace ceiechart
