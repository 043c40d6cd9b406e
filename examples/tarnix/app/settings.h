#pragma once

#include "preferences/preference_types.h"

#include <QList>

namespace tarnix {

/// All preferences of the program. One object, made before the controllers start.
///
/// Where an old installation had the same preference, chapter and name are those that the
/// conversion of old files knows.
class Settings
{
public:
    static Settings& GetInstance();

    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    /// Back to the defaults in all that the options show; recent files and the place of the window
    /// stay.
    void RestoreDefaults();

private:
    ovk::PreferenceChapter m_files;
    ovk::PreferenceChapter m_look;
    ovk::PreferenceChapter m_work;
    ovk::PreferenceChapter m_build;
    ovk::PreferenceChapter m_view;
    ovk::PreferenceChapter m_camera;
    ovk::PreferenceChapter m_general;
    Chapter m_general_other;
    Chapter m_general_snapping;
    ovk::PreferenceChapter m_translate;
    ovk::PreferenceChapter m_rotate;
    ovk::PreferenceChapter m_mini;
    ovk::PreferenceChapter m_colors;
    Chapter m_colors_other;
    Chapter m_colors_stl;
    ovk::PreferenceChapter m_measurements;
    ovk::PreferenceChapter m_slice_viewer;
    ovk::PreferenceChapter m_primitives;
    Chapter m_box;
    Chapter m_cylinder;
    Chapter m_cone;
    Chapter m_prism;
    Chapter m_sphere;
    Chapter m_torus;
    ovk::PreferenceChapter m_import;
    ovk::PreferenceChapter m_export;
    Chapter m_export_general;
    ovk::PreferenceChapter m_undo;
    ovk::PreferenceChapter m_visualization;
    Chapter m_renderer;
    ovk::PreferenceChapter m_materials;

public:
    // Files.
    ovk::Preference<QStringList> recent_files;
    TextPreference folder;
    IntPreference recent_count;
    SwitchPreference reopen_last; ///< the build of the last time is opened at the start
    TextPreference last_build;

    // Look.
    IntPreference theme;       ///< a Qtitan::OfficeStyle::Theme
    IntPreference light_theme; ///< the theme to go back to from the dark one
    IntPreference accent;      ///< a Qtitan::OfficeStyle::AccentColor
    SwitchPreference group_titles;
    SwitchPreference own_frame; ///< the window draws its own caption
    SwitchPreference status_bar;
    SwitchPreference ribbon_minimized;
    ovk::Preference<QByteArray> geometry;
    ovk::Preference<QByteArray> options_state; ///< page and search of the options
    TextPreference layout;
    TextPreference language;       ///< its code; empty for the system's
    IntPreference message_seconds; ///< how long a word stays in the status bar
    IntPreference decimals;        ///< of lengths in millimetres
    FontPreference scene_font;     ///< of texts in the scene

    // Units and steps.
    UnitPreference inches;
    LengthPreference move_step;  ///< millimetres
    DoublePreference turn_step;  ///< degrees
    SwitchPreference snap_turns; ///< angles that are typed come to a multiple of the step
    DoublePreference gap;        ///< millimetres
    SwitchPreference snap_to_grid;
    IntPreference drag_pixels; ///< as far the pointer moves before a press becomes a drag
    SwitchPreference snap_points;
    SwitchPreference snap_edges;
    ColorPreference snap_color;
    IntPreference undo_steps;

    // Build volume and material.
    DoublePreference plate_width;
    DoublePreference plate_depth;
    DoublePreference plate_height;
    DoublePreference density;  ///< grams a cubic centimetre
    DoublePreference overhang; ///< degrees
    TextPreference material;   ///< the name of a profile; empty for none
    MaterialProfiles materials;

    // View.
    IntPreference display;
    SwitchPreference plate;
    SwitchPreference grid;
    SwitchPreference volume;
    SwitchPreference axes;
    SwitchPreference labels;
    SwitchPreference view_cube;
    SwitchPreference shadows;
    SwitchPreference perspective;
    LengthPreference grid_step; ///< millimetres; 0 for the usual one of the unit
    IntPreference grid_major;   ///< every so many lines is a strong one
    SwitchPreference smooth_shading;
    SwitchPreference fine_edges; ///< in a view at rest

    // Camera.
    DirectionPreference start_view;
    DoublePreference orbit_speed;
    DoublePreference zoom_speed;
    SwitchPreference invert_wheel;
    IntPreference flight_ms; ///< 0: views jump
    IntPreference former_views;

    // Colours.
    ColorPreference background_top;
    ColorPreference background_bottom;
    ColorPreference plate_color;
    ColorPreference envelope_color;
    ColorPreference grid_color;
    ColorPreference grid_axes_color;
    ColorPreference text_color;
    ColorPreference selection_color;
    ColorPreference edge_color;
    ColorPreference part_colors[5];
    SwitchPreference color_in_turn;
    ColorPreference measure_color;
    ColorPreference measure_text_color;
    DoublePreference measure_width;
    ColorPreference contour_color;
    ColorPreference hatch_color;

    // Layers.
    DoublePreference layer_thickness;
    LengthPreference hatch_spacing;
    DoublePreference hatch_angle;
    SwitchPreference hatch_cross;
    IntPreference play_interval; ///< milliseconds

    // New solids; lengths in millimetres.
    LengthPreference box_x, box_y, box_z;
    LengthPreference cylinder_r, cylinder_h;
    LengthPreference cone_r1, cone_r2, cone_h;
    LengthPreference prism_r, prism_h;
    IntPreference prism_n;
    LengthPreference sphere_r;
    LengthPreference torus_r1, torus_r2;

    // Import and export.
    SwitchPreference repair_at_import;
    SwitchPreference place_at_import;
    IntPreference
        inches_below; ///< a smaller part is taken to be in inches; 0 for none, millimetres
    SwitchPreference dont_ask_unsaved;
    IntPreference picture_width;
    IntPreference picture_height;

private:
    Settings();
};

} // namespace tarnix
