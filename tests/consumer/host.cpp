// SPDX-License-Identifier: MIT
#include <ceiechart/render/drawceipicture.h>

#include <QApplication>
#include <QImage>

#include <memory>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    NewCEIE::DrawCEIPicture renderer(nullptr);
    const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(100, 100, true, false, false, {}));
    return picture->size() == QSize(100, 100) && picture->pixelColor(50, 50).alpha() == 255 ? 0 : 1;
}
