#pragma once

#include "model/measure.h"
#include "view/camera.h"
#include "view/color_scale.h"

#include <QColor>
#include <QFont>

namespace tarnix {

enum class DisplayMode
{
    Shaded,
    Edges,
    Triangles,
    Wireframe,
    Transparent,
    Boxes
};

/// A plane across an axis (0, 1, 2) at a place in millimetres. What lies above it is hidden, or
/// below it when flipped.
struct Section
{
    bool on = false;
    int axis = 2;
    double at = 0.0;
    bool flipped = false;
};

enum class SnapMode
{
    None,
    Points,
    Edges
};

struct LayerOptions
{
    bool shown = false;
    double thickness = 0.2;
    int current = 0;
    bool filled = true;
    bool hatched = false;
    bool crossed = true;
    bool stack = true;
    double hatch_spacing = 1.2;
    double hatch_degrees = 45.0;

    /// The angle of the lines of a layer.
    double DegreesOf(int layer) const
    {
        return hatch_degrees + (crossed && layer % 2 ? 90.0 : 0.0);
    }
};

/// All that decides how the scene looks, apart from the parts and the camera.
struct ViewState
{
    DisplayMode mode = DisplayMode::Edges;
    ColorBy color_by = ColorBy::Part;
    bool plate = true;
    bool grid = true;
    bool volume = true;
    bool axes = true;
    bool labels = false;
    bool bounds = false;
    bool view_cube = true;
    bool shadows = true;
    bool overhangs = false;
    double overhang_degrees = 45.0;
    bool open_edges = false;
    bool back_faces = true;
    bool center_of_mass = false;
    double grid_step = 0.0; ///< millimetres; 0 for the usual one of the unit
    int grid_major = 5;     ///< every so many lines is a strong one
    bool smooth = true;     ///< light runs over soft bends
    bool fine = true;       ///< smooth edges in a view at rest
    double measure_width = 1.8;
    QFont font; ///< of texts in the scene
    Section section;
    LayerOptions layers;
};

/// The colours around the parts; they follow the theme.
struct ViewColors
{
    QColor top;    ///< background, upper end
    QColor bottom; ///< background, lower end
    QColor plate;
    QColor grid;
    QColor frame; ///< edges of the plate and the build volume
    QColor text;
    QColor bubble; ///< ground of texts in the scene
    QColor accent; ///< selection
    QColor edge;   ///< edges of parts
    QColor volume;       ///< edges of the build volume
    QColor strong_grid;  ///< every so many lines
    QColor measure;      ///< lines of measurements
    QColor measure_text;
    QColor candidate; ///< the point that a click would take
    QColor contour;   ///< of layers; invalid for the colour of each part
    QColor hatch;     ///< likewise

    /// Gives the colours of details those that go with `frame` and `text`.
    void Complete();

    static ViewColors Light(const QColor& accent);
    static ViewColors Dark(const QColor& accent);
};

} // namespace tarnix
