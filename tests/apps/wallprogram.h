// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_APPS_WALLPROGRAM_H
#define CEIECHART_TESTS_APPS_WALLPROGRAM_H

#include "programrunner.h"

#include <gamutmodel/drive.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

inline const QString sample = QStringLiteral(SIMULATED_WALL);

inline const QByteArray wallList = R"(cabinet,row,column,name,x,y,Lv (cd/m2)
A1,1,1,red,0.6996,0.2999,231.2
A1,1,1,green,0.1781,0.7214,718.4
A1,1,1,blue,0.1412,0.0493,79.7
A2,1,2,red,0.6950,0.3040,250.8
A2,1,2,green,0.1812,0.7170,690.4
A2,1,2,blue,0.1405,0.0510,85.3
)";

//! A target in cd/m² whose primaries mix to a white of \a luminance.
inline QByteArray targetText(double luminance, double redX = 0.64)
{
    const auto color = [](double Y, double x, double y) { return QJsonObject{{"Y", Y}, {"x", x}, {"y", y}}; };
    const auto unit = [](double x, double y) { return Model::Target::fromYxy(1.0, x, y); };
    const Model::DisplayDrive mixture({unit(redX, 0.33), unit(0.3, 0.6), unit(0.15, 0.07), {}});
    const Model::Drive of = *mixture.driveOf(Model::Target::fromYxy(luminance, 0.3127, 0.329));
    return QJsonDocument(
        QJsonObject{{"version", 1}, {"target", "Stage"},
            {"gamuts",
                QJsonArray{QJsonObject{{"name", "Stage"}, {"luminanceUnit", "cd/m2"},
                    {"red", color(of.red, redX, 0.33)}, {"green", color(of.green, 0.3, 0.6)},
                    {"blue", color(of.blue, 0.15, 0.07)}, {"white", color(luminance, 0.3127, 0.329)}}}}})
        .toJson();
}

/*! \brief The program in a folder with a wall of two cabinets, wall.csv, and a target, stage.json. */
class WallProgram : protected ProgramRunner {
protected:
    void begin()
    {
        renewFolder();
        write("wall.csv", wallList);
        write("stage.json", targetText(500.0));
    }

    QByteArray read(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

#endif // CEIECHART_TESTS_APPS_WALLPROGRAM_H
