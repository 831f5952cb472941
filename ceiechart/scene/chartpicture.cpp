// SPDX-License-Identifier: MIT
#include <ceiechart/scene/chartpicture.h>

#include <QPainter>

#include <cmath>
#include <memory>

namespace ceiechart {

namespace {

bool isOpaque(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        QRgb all = 0xff000000U;
        for (int x = 0; x < picture.width(); ++x) {
            all &= line[x];
        }
        if (qAlpha(all) != 255) {
            return false;
        }
    }
    return true;
}

bool isWhole(double value)
{
    return value == std::floor(value) && std::fabs(value) < 1e6;
}

/*!
 * Whether painting into \a rect touches whole device pixels only, one for each unit, and begins inside the device:
 * the engine's sampling positions are rounded from where a row begins, so that only then a copy is the same.
 */
bool isCopyExact(const QPainter &painter, const QRectF &rect)
{
    const QTransform &transform = painter.deviceTransform();
    return transform.type() <= QTransform::TxTranslate && isWhole(transform.dx()) && isWhole(transform.dy())
        && isWhole(rect.x()) && isWhole(rect.y()) && isWhole(rect.width()) && isWhole(rect.height())
        && rect.x() + transform.dx() >= 0 && rect.y() + transform.dy() >= 0;
}

} // namespace

void ChartPicture::reset(QImage *picture)
{
    const std::unique_ptr<QImage> owned(picture);
    m_image = owned ? std::move(*owned) : QImage();
    m_scaled = QImage();
    m_set = owned != nullptr;
    m_ready = false;
}

void ChartPicture::makeReady()
{
    if (m_ready || m_image.format() != QImage::Format_ARGB32) {
        return;
    }
    if (isOpaque(m_image)) {
        m_image.reinterpretAsFormat(QImage::Format_RGB32);
    } else {
        m_image.convertTo(QImage::Format_ARGB32_Premultiplied);
    }
    m_ready = true;
}

void ChartPicture::draw(QPainter *painter, const QRectF &target)
{
    makeReady();
    const QSize size = target.size().toSize();
    if (size == m_image.size() || !isCopyExact(*painter, target)) {
        drawPart(painter, target, m_image.rect());
        return;
    }
    if (m_scaled.size() != size) {
        m_scaled = QImage(size, m_image.format());
        if (m_scaled.isNull()) {
            drawPart(painter, target, m_image.rect());
            return;
        }
        m_scaled.fill(Qt::transparent);
        QPainter scaling(&m_scaled);
        drawPart(&scaling, m_scaled.rect(), m_image.rect());
    }
    painter->drawImage(target.topLeft(), m_scaled);
}

void ChartPicture::drawPart(QPainter *painter, const QRectF &target, const QRectF &source)
{
    makeReady();
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, true);
    painter->drawImage(target, m_image, source);
    painter->restore();
}

} // namespace ceiechart
