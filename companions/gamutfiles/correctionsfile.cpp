// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/correctionsfile.h>

#include "correctionsfile_p.h"
#include "descriptionreader_p.h"
#include "textencoding_p.h"
#include <gamutfiles/filebytes.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

namespace gamutfiles {

namespace {

struct CorrectionsText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Corrections)
};

} // namespace

QString exactText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString jsonString(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

QString correctionsUnitName(LuminanceUnit unit)
{
    const QString name = luminanceUnitName(unit);
    return name.isEmpty() ? QStringLiteral("unknown") : name;
}

std::optional<LuminanceUnit> correctionsUnit(const QString &name)
{
    for (const LuminanceUnit unit :
        {LuminanceUnit::CandelaPerSquareMetre, LuminanceUnit::Relative, LuminanceUnit::NotKnown}) {
        if (name == correctionsUnitName(unit)) {
            return unit;
        }
    }
    return std::nullopt;
}

QString whyNotListed(const CabinetCorrection &cabinet, const QSet<QString> &labels)
{
    const QString label = cabinet.label();
    if (label.trimmed().isEmpty()) {
        return CorrectionsText::tr("a cabinet needs a name, or row and column");
    }
    if (!isStorable(label)) {
        return CorrectionsText::tr("a name has characters that cannot be stored");
    }
    if (!isStorable(cabinet.fault)) {
        return CorrectionsText::tr("a reason has characters that cannot be stored");
    }
    if (labels.contains(label)) {
        return CorrectionsText::tr("there is already a cabinet %1").arg(quoted(label));
    }
    if (cabinet.matrix && !cabinet.fault.isEmpty()) {
        return CorrectionsText::tr("there is a matrix, and a reason why there is none");
    }
    return !cabinet.matrix && cabinet.fault.trimmed().isEmpty()
        ? CorrectionsText::tr("there is neither a matrix nor a reason why there is none")
        : QString();
}

QString CabinetCorrection::label() const
{
    return cabinetLabel(name, row, column);
}

Outcome<WallCorrections> readCorrections(const QByteArray &utf8)
{
    using Failure = Outcome<WallCorrections>;
    if (utf8.size() > maximumCorrectionsBytes) {
        return Failure::failure(CorrectionsText::tr("is too large for a file of corrections (more than %1 KiB)")
                                    .arg(maximumCorrectionsBytes / 1024));
    }
    const QByteArray text = utf8.startsWith("\xEF\xBB\xBF") ? utf8.mid(3) : utf8;
    return text.left(4096).trimmed().startsWith('{') ? readCorrectionsJson(utf8) : readCorrectionsCsv(text);
}

Outcome<WallCorrections> readCorrectionsFile(const QString &fileName)
{
    const Outcome<QByteArray> bytes = readBytes(fileName, maximumCorrectionsBytes);
    return bytes ? readCorrections(*bytes) : Outcome<WallCorrections>::failure(bytes.problem());
}

} // namespace gamutfiles
