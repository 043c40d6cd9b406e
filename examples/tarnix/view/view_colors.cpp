#include "view/view_state.h"

namespace tarnix {

void ViewColors::Complete()
{
    volume = frame;
    strong_grid = frame;
    measure = QColor(0xe0, 0x5a, 0x1e);
    measure_text = text;
    candidate = QColor(0xf2, 0xc1, 0x4e);
}

ViewColors ViewColors::Light(const QColor& accent)
{
    ViewColors colors;
    colors.top = QColor(0xfb, 0xfc, 0xfd);
    colors.bottom = QColor(0xdd, 0xe4, 0xeb);
    colors.plate = QColor(0xee, 0xf2, 0xf6);
    colors.grid = QColor(0xc6, 0xd0, 0xda);
    colors.frame = QColor(0x8a, 0x9a, 0xaa);
    colors.text = QColor(0x26, 0x32, 0x3d);
    colors.bubble = QColor(255, 255, 255, 232);
    colors.accent = accent;
    colors.edge = QColor(0x1f, 0x2a, 0x35);
    colors.Complete();
    return colors;
}

ViewColors ViewColors::Dark(const QColor& accent)
{
    ViewColors colors;
    colors.top = QColor(0x3a, 0x3f, 0x45);
    colors.bottom = QColor(0x25, 0x28, 0x2c);
    colors.plate = QColor(0x3b, 0x41, 0x48);
    colors.grid = QColor(0x52, 0x5a, 0x63);
    colors.frame = QColor(0x7d, 0x8a, 0x97);
    colors.text = QColor(0xec, 0xf0, 0xf4);
    colors.bubble = QColor(0x20, 0x24, 0x28, 225);
    colors.accent = accent;
    colors.edge = QColor(0x10, 0x14, 0x18);
    colors.Complete();
    return colors;
}

} // namespace tarnix
