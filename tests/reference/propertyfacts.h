// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_PROPERTYFACTS_H
#define CEIECHART_TESTS_REFERENCE_PROPERTYFACTS_H

#include <QMetaObject>
#include <QMetaProperty>
#include <QStringList>

namespace reference {

/*!
 * \brief The names of the properties that a class itself declares, in order. One that a form cannot write, or that
 * announces its changes, is marked.
 */
inline QStringList declaredProperties(const QMetaObject &meta)
{
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        names.append(QLatin1String(property.name()) + (property.isWritable() ? "" : " (read only)")
            + (property.hasStdCppSet() ? "" : " (no setter of its name)")
            + (property.hasNotifySignal() ? " (announced)" : ""));
    }
    return names;
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_PROPERTYFACTS_H
