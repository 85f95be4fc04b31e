// The words of the legend, and how they are laid out beside their pictures.
#include "desktop/Legend.h"

#include "desktop/SpriteImages.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <array>
#include <vector>

namespace tumbledeep {

namespace {

struct KindEntry {
    Kind Which;
    std::vector<Picture> Looks;
    const char* Name;
    const char* Does;
};

struct KeyEntry {
    const char* Keys;
    const char* Does;
};

using enum Picture;

Picture Nth(Picture first, int index) {
    return static_cast<Picture>(static_cast<int>(first) + index);
}

const std::vector<KindEntry>& Kinds() {
    static const std::vector<KindEntry> kinds{
        {Kind::You, {None}, "You", "dig dirt away, gather gems, push rocks and T mines aside"},
        {Kind::Gem1Type,
         {GemTypePic, Nth(GemTypePic, 1), Nth(GemTypePic, 4)},
         "Gems",
         "take them all to win; they fall, and do no harm"},
        {Kind::Dirt, {None}, "Dirt", "gone where you have walked; holds what lies on it"},
        {Kind::HardDirt, {None}, "Wall", "stays for ever"},
        {Kind::RoundRock,
         {RoundRockPic, Nth(RoundRockPic, 1), Nth(RoundRockPic, 6)},
         "Rocks",
         "fall and roll; a fall that ends right above you kills, one that rests on you does not"},
        {Kind::MovingMineL,
         {MovingMineLUpPic, HeadingPicture(MovingMineLUpPic, Heading::Right)},
         "L mine",
         "keeps a wall at its left hand, where the spike points; kills beside it"},
        {Kind::MovingMineR,
         {MovingMineRUpPic, HeadingPicture(MovingMineRUpPic, Heading::Right)},
         "R mine",
         "the same with its right hand"},
        {Kind::MovingMineFL,
         {MovingMineFL},
         "FL mine",
         "runs straight until something stops it; kills straight ahead"},
        {Kind::MovingMineP,
         {MovingMineP},
         "P mine",
         "turns towards you when something stops it; kills beside it"},
        {Kind::MovingMinePP,
         {MovingMinePP},
         "PP mine",
         "turns towards you at every step; kills beside it"},
        {Kind::MovingMineT,
         {MovingMineT},
         "T mine",
         "falls like a rock, and goes off where it lands"},
        {Kind::Bang,
         {Bang},
         "Blast",
         "takes dirt, rocks and you in the nine cells round it, and sets off mines"},
        {Kind::Factory,
         {Factory},
         "Factory",
         "brings out something new whenever its spot is free; you can walk over it"},
    };
    return kinds;
}

constexpr std::array<KeyEntry, 9> Keys{{
    {"w a s d", "a step up, left, down, right; on and on while held"},
    {"arrow keys", "the same"},
    {"p, or a click", "pause, and on again"},
    {"mouse, held", "drags the board"},
    {"Enter, Esc", "Yes and No in a box"},
    {"Alt + F, Alt + S", "the menus"},
    {"Ctrl + and Ctrl -", "larger and smaller; Ctrl 0 as the screen asks for"},
    {"F11", "full screen, and back"},
    {"F1", "this page"},
}};

/// The pictures of an entry side by side.
QPixmap Strip(const SpriteImages& images, const KindEntry& entry, qreal ratio) {
    const int side = images.Of(entry.Which, entry.Looks.front()).width();
    const auto count = static_cast<int>(entry.Looks.size());
    QPixmap strip(side * count, side);
    strip.fill(Qt::white);
    QPainter painter(&strip);
    for (int i = 0; i < count; ++i) {
        painter.drawImage(i * side, 0,
                          images.Of(entry.Which, entry.Looks[static_cast<std::size_t>(i)]));
    }
    painter.end();
    strip.setDevicePixelRatio(ratio);
    return strip;
}

QLabel* Words(const QString& text, bool bold) {
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setBold(bold);
    label->setFont(font);
    return label;
}

} // namespace

Legend::Legend(QWidget* parent, int scale) : QDialog(parent) {
    setWindowTitle("What is what");
    const qreal ratio = devicePixelRatioF();
    // All rows have to fit: the pictures take at most half of the height.
    const double room = screen()->availableSize().height() * ratio / 2;
    const auto rows = static_cast<int>(Kinds().size());
    const int most = static_cast<int>(room) / (rows * Bitmap::Size);
    SpriteImages images;
    images.SetScale(std::max(1, std::min(scale, most)));

    auto* const grid = new QGridLayout(this);
    grid->setHorizontalSpacing(fontMetrics().height());
    grid->setVerticalSpacing(2);
    int row = 0;
    for (const KindEntry& entry : Kinds()) {
        auto* const picture = new QLabel;
        picture->setPixmap(Strip(images, entry, ratio));
        grid->addWidget(picture, row, 0, Qt::AlignCenter);
        grid->addWidget(Words(entry.Name, true), row, 1);
        grid->addWidget(Words(entry.Does, false), row++, 2);
    }
    grid->setRowMinimumHeight(row++, fontMetrics().height() / 2);
    for (const KeyEntry& entry : Keys) {
        grid->addWidget(Words(entry.Keys, true), row, 0, 1, 2);
        grid->addWidget(Words(entry.Does, false), row++, 2);
    }
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    grid->addWidget(buttons, row, 0, 1, 3);
}

void Legend::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) return reject();
    QDialog::keyPressEvent(event);
}

} // namespace tumbledeep
