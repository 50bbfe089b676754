"""Puts "Hide with Velmora" into the context menu of Nautilus."""
from gi.repository import Gio, GLib, GObject, Nautilus

LABELS = {"C": "Hide with Velmora", "de": "Mit Velmora verstecken", "fr": "Masquer avec Velmora",
          "zh_CN": "用 Velmora 隐藏"}


class VelmoraHide(GObject.GObject, Nautilus.MenuProvider):
    def get_file_items(self, *arguments):
        files = arguments[-1]  # older releases pass the window first
        paths = [file.get_location().get_path() for file in files]
        if not paths or any(file.get_uri_scheme() != "file" for file in files) or None in paths:
            return []
        label = next(LABELS[name] for name in GLib.get_language_names() if name in LABELS)
        item = Nautilus.MenuItem(name="VelmoraHide::hide", label=label)
        item.connect("activate", lambda item: Gio.Subprocess.new(
            ["velmora", "--hide", "--", *paths], Gio.SubprocessFlags.NONE))
        return [item]
