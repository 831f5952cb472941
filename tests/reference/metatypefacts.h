// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_METATYPEFACTS_H
#define CEIECHART_TESTS_REFERENCE_METATYPEFACTS_H

#include <QMetaType>

namespace reference {

/*! \brief Whether a type of this name is registered as a meta-type. */
inline bool isRegistered(const char *type)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QMetaType::fromName(type).isValid();
#else
    return QMetaType::type(type) != QMetaType::UnknownType;
#endif
}

} // namespace reference

#endif
