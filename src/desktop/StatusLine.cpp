// The labels of the status bar and the red disc before them.
#include "desktop/StatusLine.h"

#include "desktop/SpriteImages.h"
#include "pictures/Catalogue.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

namespace tumbledeep {

namespace {

/// In logical pixels, both ways.
constexpr int StatusPictureSize = 14;
/// In bytes: of what a file's name gives, so much has room.
constexpr std::size_t LongestPlaceText = 200;

QPixmap DiscPixmap(qreal ratio) {
    const QImage image = ImageOf(StatusDisc(), 4, StatusDiscCovers);
    QPixmap pixmap =
        QPixmap::fromImage(image.scaled(QSize(StatusPictureSize, StatusPictureSize) * ratio,
                                        Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

StatusLine::StatusLine(QMainWindow& window) {
    QStatusBar* const bar = window.statusBar();
    auto* const disc = new QLabel;
    disc->setPixmap(DiscPixmap(window.devicePixelRatioF()));
    disc->setContentsMargins(6, 0, 2, 0);
    bar->addWidget(disc);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i] = new QLabel;
        labels[i]->setTextFormat(Qt::PlainText);
        // A long text is cut off at the bar's end and makes the window no wider.
        labels[i]->setMinimumWidth(1);
        const auto place = static_cast<StatusPlace>(i);
        if (place == StatusPlace::Panel || place == StatusPlace::Advice) {
            bar->addWidget(labels[i]);
        } else {
            bar->addPermanentWidget(labels[i]);
        }
    }
    for (const StatusPlace place : {StatusPlace::Advice, StatusPlace::CapsLock}) {
        QLabel* const label = labels[static_cast<std::size_t>(place)];
        QFont font = label->font();
        font.setBold(true);
        label->setFont(font);
        label->setContentsMargins(12, 0, 12, 0);
    }
}

void StatusLine::Show(StatusPlace place, const std::string& text) {
    const auto i = static_cast<std::size_t>(place);
    if (shown[i] == text) return;
    shown[i] = text;
    labels[i]->setText(QString::fromStdString(text.substr(0, LongestPlaceText)));
}

} // namespace tumbledeep
