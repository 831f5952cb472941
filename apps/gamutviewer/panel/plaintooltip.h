// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_PLAINTOOLTIP_H
#define GAMUTVIEWER_PLAINTOOLTIP_H

#include <QTextDocument>

namespace gamutviewer {

/*! \brief A tool tip that shows \a text as it is: names of gamuts and files may look like markup. */
inline QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace gamutviewer

#endif
