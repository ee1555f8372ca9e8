"""What can be mutated, and which test programs are to notice."""
import dataclasses
import pathlib

ROOT = pathlib.Path(__file__).resolve().parents[2]


@dataclasses.dataclass
class Area:
    name: str
    preset: str
    folders: tuple
    left_out: tuple  # Tables, and what doesn't read descriptions.
    programs: tuple  # The last ones are asked last.
    mutates_tests: bool  # The tests too are compiled with the mutants that stand in headers.

    @property
    def folder(self):
        return ROOT / "build/mutate" / self.name

    @property
    def binaries(self):  # As deep as that of a preset: the compiler cache knows what has no mutants.
        return ROOT / f"build/mutate-{self.name}"

    def files(self):
        found = []
        for folder in self.folders:
            found += [path for path in sorted((ROOT / "src" / folder).iterdir()) if path.suffix in (".cpp", ".h")]
        return [str(path.relative_to(ROOT / "src")) for path in found if path.name not in self.left_out]


KINDS = tuple(f"controls_{folder}" for folder in ("labels", "buttons", "animation", "drawing", "text", "lists"))
AREAS = {
    "reader": Area("reader", "host", ("baselib", "containers", "records"),
                   ("gbk_table.cpp", "gbk_table.h", "gbk_texts.h", "io_write.cpp", "real_write.cpp",
                    "message_catalogue.cpp", "message_catalogue.h", "message_texts.cpp", "message_texts.h"),
                   ("baselib", "containers", "records", "dialog", "pictures", "editing", *KINDS, "tools"),
                   True),
    "windows": Area("windows", "windows", ("controls/base", "dialog"), (),
                    ("controls_base", "dialog", *KINDS), False),
}
