#!/usr/bin/env python3
"""Makes the feature catalogue and the default profiles of the sample host from their tables.

    python3 make_catalogue.py            writes the files beside this script
    python3 make_catalogue.py --check    compares them with what would be written
"""
import json
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
LAYOUTS = (("P", "Prepare"), ("I", "Inspect"), ("S", "Slice"))
PRODUCTS = (("F", "Tarnix", "tarnix"), ("L", "Tarnix Lite", "lite"))
LARGE, BESIDE, ICON = 3, 2, 0
SIDES = ("left", "right", "top", "bottom")
SITE_SIZES = {"left": 245, "right": 250, "top": 150, "bottom": 150}


def lines(name):
    with open(os.path.join(HERE, name), encoding="utf-8") as table:
        for line in table:
            if line.strip() and not line.lstrip().startswith("#"):
                yield line.rstrip("\n")


def commands():
    result = []
    for line in lines("commands.txt"):
        identifier, title, tooltip, status, where, products = [field.strip() for field in line.split("|")]
        result.append(dict(id=identifier, title=title, tooltip=tooltip, status=status, where=where,
                           products=products))
    return result


def catalogue(table):
    definitions = []
    for c in table:
        if c["id"].startswith("DynamicCommands."):
            continue
        switch = c["title"] == "-"
        definitions.append({"id": c["id"], "title": "" if switch else c["title"], "tooltip": c["tooltip"],
                            "statustip": c["status"], "visual": not switch})
    products = []
    for letter, name, suffix in PRODUCTS:
        own = [c for c in table if letter in c["products"]]
        products.append({
            "id": name, "profile_suffix": suffix,
            "functions": {"function_ids": [c["id"] for c in own if c["title"] == "-"]},
            "layout": [{"id": title, "command_ids": [c["id"] for c in own if key in c["where"]]}
                       for key, title in LAYOUTS]})
    return {"commands": {"command": definitions}, "products": {"product": products}}


def split_head(text):
    head, _, rest = text.partition(":")
    return head.split(), rest.split()


class Tables:
    """What layouts.txt says, before any product is looked at."""

    def __init__(self):
        self.composites, self.shortcuts, self.common = [], [], []
        self.blocks = {}
        block = None
        for line in lines("layouts.txt"):
            word, _, rest = line.strip().partition(" ")
            if line.startswith(" "):
                block.append(line.strip())
            elif word == "composite":
                self.composites.append(rest)
            elif word == "shortcut":
                self.shortcuts.append(rest.split(" ", 1))
            elif word == "all":
                self.common.append(rest)
            else:  # "layout" or "part", whose lines stand below it
                block = self.blocks.setdefault(rest.strip(), [])

    def of(self, name):
        for entry in self.common:
            yield entry
        for entry in self.blocks[name]:
            if entry.startswith("include "):
                yield from self.blocks[entry.split()[1]]
            else:
                yield entry


class Layout:
    """Builds the eight suites of one layout of one product."""

    def __init__(self, name, allowed, offered, tables):
        self.allowed = allowed
        self.offered = offered
        self.separators = 0
        self.composite_ids = set()
        self.states = {
            "composite": self.composite_suite(tables),
            "shortcuts": {"id": "shortcuts", "bindings": [
                {"id": i, "key sequence": key} for i, key in tables.shortcuts if i in allowed]},
            "ribbon": {"id": "ribbon", "pages": []},
            "toolbars": {"id": "toolbars", "subitems": [], "state": ""},
            "quick access bar": {"id": "quick access bar", "spots": []},
            "menus": {"id": "menus", "subitems": [], "autosize": True},
            "dialog data": {"id": "dialog data", "dialog": []},
        }
        self.panels = {side: [] for side in SIDES}
        self.floated = []
        for line in tables.of(name):
            word, _, rest = line.partition(" ")
            getattr(self, word)(rest)
        self.drop_empty()
        self.states["docking"] = self.docking()
        self.json = {"id": name, "states": self.states}

    def known(self, identifier):
        # The recent files are a family: its members are made at run time.
        if identifier.startswith("Recent."):
            return "DynamicCommands.RecentFiles" in self.allowed
        return identifier in self.allowed or identifier in self.composite_ids

    def spots(self, words, style):
        """Spots of the known commands; separators only between two of them."""
        result = []
        pending = False
        for word in words:
            if word == "|":
                pending = bool(result)
                continue
            mark, identifier = (word[0], word[1:]) if word[0] in "+=" else ("", word)
            if not self.known(identifier):
                continue
            if pending:
                self.separators += 1
                result.append({"id": "%x" % self.separators, "type": "separator"})
                pending = False
            own = {"+": LARGE, "=": ICON, "": style}[mark]
            spot = {"id": identifier}
            if own:
                spot["style"] = own
            result.append(spot)
        return result

    def composite_suite(self, tables):
        items = []
        for entry in tables.composites:
            head, words = split_head(entry)
            kind, identifier = head[0], head[1]
            own = [w for w in words if w != "|" and self.known(w)]
            if not own:
                continue
            self.composite_ids.add(identifier)
            node = {"id": identifier, "type": kind, "items": own}
            if len(head) > 2:
                node["icon"], node["title"] = head[2], " ".join(head[3:])
            items.append(node)
        return {"id": "composite", "subitems": items}

    # One operation for each word of the table.
    def quick(self, rest):
        self.states["quick access bar"]["spots"] = self.spots(rest.split(), ICON)

    def toolbar(self, rest):
        head, words = split_head(rest)
        self.states["toolbars"]["subitems"].append(
            {"id": head[0], "title": " ".join(head[2:]), "break": False, "area": int(head[1]),
             "floating": False, "movable": True, "spots": self.spots(words, ICON)})

    def shortcut(self, rest):
        identifier, key = rest.split(" ", 1)
        if identifier not in self.allowed:
            return
        bindings = self.states["shortcuts"]["bindings"]
        bindings[:] = [b for b in bindings if b["id"] != identifier and b["key sequence"] != key]
        bindings.append({"id": identifier, "key sequence": key})

    def menu(self, rest):
        head, words = split_head(rest)
        self.states["menus"]["subitems"].append(
            {"id": head[0], "title": " ".join(head[2:]), "key": int(head[1]), "spots": self.spots(words, ICON)})

    def panel(self, rest):
        head, pages = split_head(rest)
        self.panels[head[0]].append(self.dock_widget(head[1:], pages, (0, 0, 250, 260)))

    def float(self, rest):
        head, pages = split_head(rest)
        self.floated.append(self.dock_widget(head[4:], pages, [int(n) for n in head[:4]]))

    def dock_widget(self, head, pages, place):
        """Pages of the product; those that this layout does not offer wait unseen."""
        return {"id": head[0], "title": " ".join(head[1:]), "persistence": 4, "width": place[2],
                "height": place[3], "top": place[1], "left": place[0],
                "pages": [{"id": p.split("=")[0], "title": p.split("=")[1]} for p in pages
                          if p.split("=")[0].replace("Page.", "Window.") in self.offered]}

    def page(self, rest):
        identifier, title = rest.split(" ", 1)
        self.states["ribbon"]["pages"].append({"id": identifier, "title": title, "persistence": 3, "groups": []})

    def group(self, rest):
        head, words = split_head(rest)
        self.states["ribbon"]["pages"][-1]["groups"].append(
            {"id": head[0], "title": " ".join(head[1:]), "persistence": 3, "spots": self.spots(words, BESIDE)})

    def drop_empty(self):
        pages = self.states["ribbon"]["pages"]
        for page in pages:
            page["groups"] = [g for g in page["groups"] if g["spots"]]
        self.states["ribbon"]["pages"] = [p for p in pages if p["groups"]]

    def docking(self):
        def site(side):
            panels = [p for p in self.panels[side] if p["pages"]]
            boxes = {"id": "toolboxes.site", "subitems": panels}
            if panels:
                boxes["size"] = SITE_SIZES[side]
            return {"id": side, "subitems": [boxes, {"id": "toolbars.inner", "subitems": []},
                                             {"id": "toolbars.outter", "subitems": []}]}
        return {"id": "docking", "subitems": [
            {"id": "areas", "subitems": [{"id": "manager.area", "sites": [site(s) for s in SIDES]}]},
            {"id": "floated", "subitems": [p for p in self.floated if p["pages"]]}]}


def profile(letter, table, tables):
    layouts = []
    offered = {c["id"] for c in table if letter in c["products"]}
    for key, name in LAYOUTS:
        allowed = {c["id"] for c in table if letter in c["products"] and key in c["where"]}
        layouts.append(Layout(name, allowed, offered, tables).json)
    product = next(name for l, name, _ in PRODUCTS if l == letter)
    return {"profile": {"layouts": layouts, "product": product, "version": "1.0.0.0", "counter": 100}}


def files():
    table, tables = commands(), Tables()
    listed = {c["id"] for c in table}
    for line in lines("layouts.txt"):
        for word in line.partition(":")[2].split():
            identifier = word.lstrip("+=")
            if "." in identifier and not identifier.startswith(("Combo.", "Page.", "Recent.")) and identifier not in listed:
                sys.exit("layouts.txt names an unknown command: " + identifier)
    result = {"features.definition.default.json": catalogue(table)}
    for letter, _, suffix in PRODUCTS:
        result["uiprofile.%s.json" % suffix] = profile(letter, table, tables)
    return {name: json.dumps(value, indent=1, ensure_ascii=False) + "\n" for name, value in result.items()}


def main():
    wrong = 0
    for name, text in files().items():
        path = os.path.join(HERE, name)
        if "--check" in sys.argv:
            same = os.path.exists(path) and open(path, encoding="utf-8").read() == text
            wrong += not same
            if not same:
                print(name)
        else:
            with open(path, "w", encoding="utf-8", newline="\n") as out:
                out.write(text)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
