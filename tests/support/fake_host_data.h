#pragma once

namespace ovk_test {

constexpr char g_small_catalogue[] = R"json(
{
  "commands": {
    "command": [
      { "id": "File.Open", "title": "Open", "tooltip": "Open a part", "statustip": "Opens a file", "visual": true },
      { "id": "File.Save", "title": "Save", "tooltip": "Save the part", "statustip": "Saves the file", "visual": true },
      { "id": "Edit.Copy", "title": "Copy", "visual": true },
      { "id": "Edit.Paste", "title": "Paste", "visual": true },
      { "id": "View.Zoom", "title": "Zoom", "visual": true },
      { "id": "View.Hidden", "title": "Never offered" },
      { "id": "Slice.Run", "title": "Slice", "visual": true },
      { "id": "Help.About", "title": "About", "visual": true },
      { "id": "Tool.Unlisted", "title": "In no layout", "visual": true }
    ]
  },
  "products": {
    "product": [
      {
        "id": "Other",
        "profile_suffix": "other",
        "functions": { "function_ids": [] },
        "layout": [ { "id": "Model", "command_ids": [ "Tool.Unlisted" ] } ]
      },
      {
        "id": "Fake",
        "profile_suffix": "fake",
        "functions": { "function_ids": [ "Help.About" ] },
        "layout": [
          {
            "id": "Model",
            "command_ids": [ "File.Open", "File.Save", "Edit.Copy", "Edit.Paste", "View.Zoom",
                             "View.Hidden", "DynamicCommands.Recent" ]
          },
          { "id": "Slice", "command_ids": [ "File.Open", "File.Save", "Slice.Run", "View.Zoom" ] }
        ]
      }
    ]
  }
}
)json";

constexpr char g_small_profile[] = R"json(
{
  "profile": {
    "version": "0.0.0.0",
    "product": "Fake",
    "counter": 100,
    "layouts": [
      {
        "id": "Model",
        "states": {
          "ribbon": {
            "id": "ribbon",
            "pages": [
              {
                "id": "page.home", "title": "Home", "persistence": 3,
                "groups": [
                  {
                    "id": "group.file", "title": "File", "persistence": 3,
                    "spots": [
                      { "id": "File.Open", "style": 3 },
                      { "id": "separator.file", "type": "separator" },
                      { "id": "File.Save", "style": 2 }
                    ]
                  },
                  {
                    "id": "group.edit", "title": "Edit", "persistence": 3,
                    "spots": [ { "id": "composite.clip", "style": 2 } ]
                  }
                ]
              }
            ]
          },
          "toolbars": {
            "id": "toolbars",
            "subitems": [
              {
                "id": "toolbar.view", "title": "View", "area": 4, "movable": true,
                "spots": [ { "id": "View.Zoom", "style": 2 }, { "id": "View.Hidden" } ]
              }
            ]
          },
          "quick access bar": { "id": "quick access bar", "spots": [ { "id": "File.Save" } ] },
          "menus": {
            "id": "menus",
            "autosize": false,
            "subitems": [
              {
                "id": "menu.main", "title": "Main", "key": 121,
                "spots": [ { "id": "Edit.Copy", "style": 2 } ]
              }
            ]
          },
          "shortcuts": {
            "id": "shortcuts",
            "bindings": [ { "id": "File.Open", "key sequence": "Ctrl+O" } ]
          },
          "composite": {
            "id": "composite",
            "subitems": [
              {
                "id": "composite.clip", "type": "menu", "title": "Clipboard",
                "items": [ "Edit.Copy", "Edit.Paste" ]
              },
              { "id": "composite.save", "type": "command", "items": [ "File.Save", "File.Open" ] }
            ]
          }
        }
      },
      {
        "id": "Slice",
        "states": {
          "ribbon": {
            "id": "ribbon",
            "pages": [
              {
                "id": "page.slice", "title": "Slice", "persistence": 3,
                "groups": [
                  {
                    "id": "group.slice", "title": "Slice", "persistence": 3,
                    "spots": [ { "id": "Slice.Run", "style": 3 }, { "id": "File.Open", "style": 2 } ]
                  }
                ]
              }
            ]
          }
        }
      }
    ]
  }
}
)json";

} // namespace ovk_test
