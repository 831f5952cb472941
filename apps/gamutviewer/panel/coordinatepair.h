// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_COORDINATEPAIR_H
#define GAMUTVIEWER_COORDINATEPAIR_H

#include <QPointF>
#include <QString>

#include <optional>

namespace gamutviewer {

/*! \brief The two numbers in \a text: "0.708, 0.292", or with a semicolon, a blank or a tab between them. */
std::optional<QPointF> pairFromText(const QString &text);

} // namespace gamutviewer

#endif
