// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_SCENESIGNALFACTS_H
#define CEIECHART_TESTS_REFERENCE_SCENESIGNALFACTS_H

#include <QMetaMethod>
#include <QMetaObject>
#include <QStringList>

namespace reference {

/*! \brief The signals that a class itself declares, as "name(type parameter)", in the order of declaration. */
inline QStringList declaredSignals(const QMetaObject &meta)
{
    QStringList found;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == QMetaMethod::Signal) {
            QStringList parameters;
            for (int p = 0; p < method.parameterCount(); ++p) {
                parameters << QString::fromLatin1(method.parameterTypes().at(p)) + QLatin1Char(' ')
                        + QString::fromLatin1(method.parameterNames().at(p));
            }
            found << QString::fromLatin1(method.name()) + QLatin1Char('(') + parameters.join(QStringLiteral(", "))
                    + QLatin1Char(')');
        }
    }
    return found;
}

/*! \brief The signals of the scenes of both generations. Hosts connect to exactly these names. */
inline QStringList sceneSignals()
{
    return {
        QStringLiteral("signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject)"),
        QStringLiteral("signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject)"),
        QStringLiteral("signal_colorTempertrueValueChang(double colorTempertureValue)"),
        QStringLiteral("signal_mouseCursorChange(QCursor mouseCursorStyle)"),
        QStringLiteral("signal_targetInfoChanged(TargetInfoChangedEventArgs targetInfoChangedEventArgs)"),
        QStringLiteral("signal_triangleObjecIinitialized("
                       "TriangleObjecIinitializedEventArgs triangleObjecIinitializedEventArgs)"),
    };
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_SCENESIGNALFACTS_H
