#include "toolkit/Theme.h"

#include <QLabel>
#include <array>

namespace vexa::theme {
namespace {

struct RoleColours {
  KeyRole role;
  KeyColours light;
  KeyColours dark;
};

KeyColours Colours(QRgb face, QRgb pressedFace, QRgb text, QRgb disabledText, QRgb border) {
  return {QColor(face), QColor(pressedFace), QColor(text), QColor(disabledText), QColor(border)};
}

/// Each row: face, pressed face, text, text of a key that is shown but inert, border.
const std::array<RoleColours, 10>& Table() {
  // clang-format off
  static const std::array<RoleColours, 10> table{{
      {KeyRole::Digit,    Colours(0xFFFFFF, 0xD9DCE2, 0x17191C, 0x8C9097, 0xC3C7CE),
                          Colours(0x43464D, 0x5A5E67, 0xFFFFFF, 0x8A8E96, 0x53575F)},
      {KeyRole::Operator, Colours(0xD9E5F8, 0xB7CCEE, 0x10305F, 0x7F93B5, 0xB3C6E4),
                          Colours(0x274063, 0x35557F, 0xDCE9FF, 0x7A8FAF, 0x375680)},
      {KeyRole::Function, Colours(0xE6E8EC, 0xCBCED5, 0x22262C, 0x8A8E95, 0xC6C9D0),
                          Colours(0x2B2E34, 0x42464E, 0xE6E8EC, 0x7D8189, 0x40444C)},
      {KeyRole::Editing,  Colours(0xF8DFD8, 0xEFC3B7, 0x74200F, 0xB58A80, 0xE5BFB5),
                          Colours(0x552B22, 0x703A2F, 0xFFDDD4, 0xA78278, 0x703A2F)},
      {KeyRole::Command,  Colours(0xDBEEDF, 0xBBDEC3, 0x124A26, 0x83A38C, 0xB5D6BD),
                          Colours(0x21432C, 0x2E5B3C, 0xD3F3DC, 0x7B9C85, 0x2E5B3C)},
      {KeyRole::Equals,   Colours(0x1F5BB5, 0x16448A, 0xFFFFFF, 0xB9C9E2, 0x1F5BB5),
                          Colours(0x2A66C4, 0x1F4F9B, 0xFFFFFF, 0xB9C9E2, 0x2A66C4)},
      // Black and orange, exchanged on the shifted layer, whatever the desktop's colours.
      {KeyRole::Shift,    Colours(0x000000, 0x3A3A3A, 0xFF8000, 0x9A6A3A, 0x000000),
                          Colours(0x000000, 0x3A3A3A, 0xFF8000, 0x9A6A3A, 0x7A3D00)},
      {KeyRole::ShiftActive, Colours(0xFF8000, 0xE07000, 0x000000, 0x8A4A0A, 0xD96C00),
                          Colours(0xFF8000, 0xE07000, 0x000000, 0x8A4A0A, 0xD96C00)},
      // The unit converter's buttons have fixed colours too.
      {KeyRole::Pale,     Colours(0xDEE7FF, 0xBECFFF, 0x10182C, 0x7C88A6, 0xB4C4EE),
                          Colours(0xDEE7FF, 0xBECFFF, 0x10182C, 0x7C88A6, 0xB4C4EE)},
      {KeyRole::Memory,   Colours(0xFF8000, 0xE07000, 0x0000FF, 0x8A4A0A, 0xD96C00),
                          Colours(0xFF8000, 0xE07000, 0x0000FF, 0x8A4A0A, 0xD96C00)},
  }};
  // clang-format on
  return table;
}

/// Half of the lightness scale, 0 to 255.
constexpr int kMiddleLightness = 128;

/// Around the text of a light blue band.
constexpr int kBandMargin = 5;

/// How much of a text's colour stays while its widget is disabled.
constexpr qreal kDisabledText = 0.62;

QColor Mixed(const QColor& text, const QColor& ground) {
  const auto mixed = [](float a, float b) {
    return static_cast<float>(kDisabledText * a + (1 - kDisabledText) * b);
  };
  return QColor::fromRgbF(mixed(text.redF(), ground.redF()), mixed(text.greenF(), ground.greenF()),
                          mixed(text.blueF(), ground.blueF()));
}

}  // namespace

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < kMiddleLightness;
}

const KeyColours& ColoursOf(KeyRole role, const QPalette& palette) {
  const RoleColours* found = &Table().front();
  for (const RoleColours& row : Table()) {
    if (row.role == role) found = &row;
  }
  return IsDark(palette) ? found->dark : found->light;
}

void ShowOnLightBlue(QLabel* label) {
  QPalette colours = label->palette();
  colours.setColor(QPalette::Window, QColor(222, 231, 255));
  colours.setColor(QPalette::WindowText, Qt::black);
  label->setPalette(colours);
  label->setAutoFillBackground(true);
  label->setMargin(kBandMargin);
}

void KeepReadable(QWidget* widget) {
  QPalette colours = widget->palette();
  for (const QPalette::ColorRole role :
       {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    colours.setColor(QPalette::Disabled, role,
                     Mixed(colours.color(QPalette::Active, role),
                           colours.color(QPalette::Active, QPalette::Window)));
  }
  for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText}) {
    colours.setColor(QPalette::Disabled, role, colours.color(QPalette::Active, role));
  }
  widget->setPalette(colours);
}

void ShowOnAmber(QWidget* field, bool dimmed) {
  const QColor amber(253, 221, 138);
  QPalette colours = field->palette();
  colours.setColor(QPalette::Base, amber);
  colours.setColor(QPalette::Text, dimmed ? Mixed(Qt::black, amber) : QColor(Qt::black));
  field->setPalette(colours);
}

void ShowAsNotice(QWidget* label) {
  QPalette colours = label->palette();
  colours.setColor(QPalette::WindowText,
                   IsDark(colours) ? QColor(0xFF, 0xB4, 0xA2) : QColor(0x9B, 0x1C, 0x0C));
  label->setPalette(colours);
}

QPalette IndicatorPalette(const QPalette& palette) {
  QPalette colours = palette;
  if (IsDark(palette)) colours.setColor(QPalette::Base, QColor(0x74, 0x77, 0x7E));
  return colours;
}

QColor FrameColour(const QPalette& palette) {
  return Mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window));
}

QFont ProgramFont(const QFont& base) {
  // The toolkit takes the first family that exists.
  QFont font(base);
  font.setFamilies({QStringLiteral("Tahoma"), base.family()});
  return font;
}

}  // namespace vexa::theme
