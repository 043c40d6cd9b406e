#include "app/settings.h"

namespace tarnix {
namespace {

QString Name(const char* name)
{
    return QString::fromLatin1(name);
}

constexpr double k_longest = 2000.0; // of an edge of a new solid

} // namespace

Settings& Settings::GetInstance()
{
    static Settings settings;
    return settings;
}

void Settings::RestoreDefaults()
{
    const QString present_layout = layout;
    const QString present_language = language;
    for (ovk::PreferenceChapter* chapter :
         {&m_look, &m_work, &m_build, &m_view, &m_camera, &m_general, &m_translate, &m_rotate,
          &m_mini, &m_colors, &m_measurements, &m_slice_viewer, &m_primitives, &m_import, &m_export,
          &m_undo, &m_visualization, &m_materials})
        chapter->RestoreDefault();
    for (ovk::PreferenceBasics* file :
         std::initializer_list<ovk::PreferenceBasics*>{&recent_count, &reopen_last})
        file->RestoreDefault();
    layout.SetData(present_layout);
    language.SetData(present_language);
}

Settings::Settings()
    : m_files(Name("TarnixFiles")), m_look(Name("TarnixLook")), m_work(Name("TarnixWork")),
      m_build(Name("TarnixBuild")), m_view(Name("TarnixView")), m_camera(Name("TarnixCamera")),
      m_general(Name("General")), m_general_other(m_general, Name("Other")),
      m_general_snapping(m_general, Name("Snapping")), m_translate(Name("Qt.Dlg.Translate")),
      m_rotate(Name("DialogRotate")), m_mini(Name("MiniTarnix")), m_colors(Name("Colors")),
      m_colors_other(m_colors, Name("Other")), m_colors_stl(m_colors, Name("STL")),
      m_measurements(Name("Measurements")), m_slice_viewer(Name("SliceViewer")),
      m_primitives(Name("Qt.Dlg.CreatePrimitive")), m_box(m_primitives, Name("Box")),
      m_cylinder(m_primitives, Name("Cylinder")), m_cone(m_primitives, Name("Cone")),
      m_prism(m_primitives, Name("Prism")), m_sphere(m_primitives, Name("Sphere")),
      m_torus(m_primitives, Name("Torus")), m_import(Name("Import_Import")),
      m_export(Name("Export")), m_export_general(m_export, Name("General")),
      m_undo(Name("Undo_and_AutoRecovery")), m_visualization(Name("Visualization")),
      m_renderer(m_visualization, Name("Renderer")), m_materials(Name("TarnixMaterials")),

      recent_files(m_files, Name("Recent")), folder(m_files, Name("Folder")),
      recent_count(m_files, Name("RecentCount"), 8, 0, 8),
      reopen_last(m_files, Name("ReopenLast"), false), last_build(m_files, Name("LastBuild")),

      theme(m_look, Name("Theme"), 8, 0, 10), light_theme(m_look, Name("LightTheme"), 8, 0, 9),
      accent(m_look, Name("Accent"), 0, 0, 9), group_titles(m_look, Name("GroupTitles"), true),
      own_frame(m_look, Name("OwnFrame"), false), status_bar(m_look, Name("StatusBar"), true),
      ribbon_minimized(m_look, Name("RibbonMinimized"), false), geometry(m_look, Name("Geometry")),
      options_state(m_look, Name("OptionsState")), layout(m_look, Name("Layout"), Name("Prepare")),
      language(m_look, Name("Language")), message_seconds(m_look, Name("MessageSeconds"), 8, 1, 60),
      decimals(m_look, Name("Decimals"), 2, 0, 4), scene_font(m_look, Name("SceneFont")),

      inches(m_general_other, Name("application_units")),
      move_step(m_translate, Name("translate_step_size"), 5.0, 0.01, 500.0),
      turn_step(m_rotate, Name("snapping_angle"), 45.0, 0.1, 180.0),
      snap_turns(m_rotate, Name("snapping_enabled"), false),
      gap(m_work, Name("Gap"), 6.0, 0.0, 200.0),
      snap_to_grid(m_translate, Name("enable_translate_snaping"), false),
      drag_pixels(m_work, Name("DragPixels"), 5, 1, 40),
      snap_points(m_general_snapping, Name("points_auto_snapping"), true),
      snap_edges(m_general_snapping, Name("lines_auto_snapping"), false),
      snap_color(m_general_snapping, Name("snap_color"), QColor(0xf2, 0xc1, 0x4e)),
      undo_steps(m_undo, Name("undo_steps"), 200, 1, 1000),

      plate_width(m_build, Name("Width"), 250.0, 10.0, 5000.0),
      plate_depth(m_build, Name("Depth"), 210.0, 10.0, 5000.0),
      plate_height(m_build, Name("Height"), 220.0, 10.0, 5000.0),
      density(m_build, Name("Density"), 1.24, 0.1, 25.0),
      overhang(m_mini, Name("wall_angle"), 45.0, 5.0, 85.0), material(m_materials, Name("Current")),
      materials(m_materials, Name("Profiles")),

      display(m_view, Name("Display"), 1, 0, 5), plate(m_view, Name("Plate"), true),
      grid(m_view, Name("Grid"), true), volume(m_view, Name("Volume"), true),
      axes(m_view, Name("Axes"), true), labels(m_view, Name("Labels"), false),
      view_cube(m_view, Name("ViewCube"), true), shadows(m_view, Name("Shadows"), true),
      perspective(m_view, Name("Perspective"), true),
      grid_step(m_view, Name("GridStep"), 0.0, 0.0, 500.0),
      grid_major(m_view, Name("GridMajor"), 5, 1, 20),
      smooth_shading(m_renderer, Name("enable_smooth_shading"), true),
      fine_edges(m_renderer, Name("FineEdges"), true),

      start_view(m_camera, Name("StartView"), 32.0, 28.0),
      orbit_speed(m_camera, Name("OrbitSpeed"), 1.0, 0.1, 5.0),
      zoom_speed(m_camera, Name("ZoomSpeed"), 1.0, 0.1, 5.0),
      invert_wheel(m_camera, Name("InvertWheel"), false),
      flight_ms(m_camera, Name("FlightTime"), 220, 0, 2000),
      former_views(m_camera, Name("FormerViews"), 40, 1, 200),

      background_top(m_colors, Name("color_scenes")),
      background_bottom(m_colors, Name("color_modeler_scene")),
      plate_color(m_colors, Name("color_platform_scenes")),
      envelope_color(m_colors_other, Name("color_build_envelope")),
      grid_color(m_colors_other, Name("color_grid_secondary_lines")),
      grid_axes_color(m_colors_other, Name("color_grid_primary_lines")),
      text_color(m_colors_other, Name("color_information_on_screen")),
      selection_color(m_colors_stl, Name("color_marked_triangles")),
      edge_color(m_colors_stl, Name("color_triangles_border")),
      part_colors{{m_colors_stl, Name("color_material_1"), QColor(0x6f, 0x9f, 0xd8)},
                  {m_colors_stl, Name("color_material_2"), QColor(0xe0, 0xa4, 0x58)},
                  {m_colors_stl, Name("color_material_3"), QColor(0x7f, 0xb7, 0x7e)},
                  {m_colors_stl, Name("color_material_4"), QColor(0xc9, 0x7b, 0x84)},
                  {m_colors_stl, Name("color_material_5"), QColor(0x9a, 0x86, 0xc9)}},
      color_in_turn(m_colors_stl, Name("allow_autocolor"), true),
      measure_color(m_measurements, Name("color_measurement"), QColor(0xe0, 0x5a, 0x1e)),
      measure_text_color(m_measurements, Name("color_text")),
      measure_width(m_measurements, Name("LineWidth"), 1.8, 0.5, 8.0),
      contour_color(m_slice_viewer, Name("borders")),
      hatch_color(m_slice_viewer, Name("normalhatching")),

      layer_thickness(m_view, Name("LayerThickness"), 0.2, 0.01, 5.0),
      hatch_spacing(m_slice_viewer, Name("HatchSpacing"), 1.2, 0.1, 50.0),
      hatch_angle(m_slice_viewer, Name("HatchAngle"), 45.0, -180.0, 180.0),
      hatch_cross(m_slice_viewer, Name("HatchCross"), true),
      play_interval(m_slice_viewer, Name("PlayInterval"), 60, 10, 1000),

      box_x(m_box, Name("x"), 30.0, 0.1, k_longest), box_y(m_box, Name("y"), 20.0, 0.1, k_longest),
      box_z(m_box, Name("z"), 15.0, 0.1, k_longest),
      cylinder_r(m_cylinder, Name("r"), 10.0, 0.05, k_longest),
      cylinder_h(m_cylinder, Name("h"), 30.0, 0.1, k_longest),
      cone_r1(m_cone, Name("r1"), 15.0, 0.05, k_longest),
      cone_r2(m_cone, Name("r2"), 0.0, 0.0, k_longest),
      cone_h(m_cone, Name("h"), 30.0, 0.1, k_longest),
      prism_r(m_prism, Name("r"), 15.0, 0.05, k_longest),
      prism_h(m_prism, Name("h"), 20.0, 0.1, k_longest), prism_n(m_prism, Name("n"), 6, 3, 64),
      sphere_r(m_sphere, Name("r"), 15.0, 0.05, k_longest),
      torus_r1(m_torus, Name("r1"), 20.0, 0.05, k_longest),
      torus_r2(m_torus, Name("r2"), 4.0, 0.05, k_longest),

      repair_at_import(m_import, Name("autorepair_at_import"), false),
      place_at_import(m_import, Name("position_at_import"), true),
      inches_below(m_import, Name("inch_to_mm_if_size_less_than"), 0, 0, 1000),
      dont_ask_unsaved(m_export_general, Name("dont_show_on_disk_warning_on_exit_tarnix"), false),
      picture_width(m_export_general, Name("PictureWidth"), 1920, 64, 8192),
      picture_height(m_export_general, Name("PictureHeight"), 1200, 64, 8192)
{
}

} // namespace tarnix
