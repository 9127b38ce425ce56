#!/usr/bin/env python3
"""Shows that the check of the layers can fail: each wrong arrow is found, each right one is not."""
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
from check_layers import names_given_twice, wrong_arrows  # noqa: E402


class Layers(unittest.TestCase):
    def wrong(self, path, include):
        return wrong_arrows(path, f"#include {include}\n")

    def test_logic_may_not_include_qt(self):
        self.assertTrue(self.wrong("storage/day_file.cpp", "<QString>"))
        self.assertTrue(self.wrong("platform/boxes.h", "<QtCore/qstring.h>"))
        self.assertFalse(self.wrong("food/consumption_window.cpp", "<QString>"))
        self.assertFalse(self.wrong("platform/qt/text.cpp", "<QString>"))

    def test_logic_may_not_include_a_window_or_the_qt_platform(self):
        self.assertTrue(self.wrong("core/frame/commands.cpp", '"food/consumption_window.h"'))
        self.assertTrue(self.wrong("core/frame/commands.cpp", '"platform/qt/text.h"'))
        self.assertFalse(self.wrong("core/frame/main_window.cpp", '"food/consumption_window.h"'))

    def test_the_qt_platform_may_not_include_a_window(self):
        self.assertTrue(self.wrong("platform/qt/look.cpp", '"food/consumption_window.h"'))

    def test_arrows_between_rooms_go_one_way(self):
        self.assertTrue(self.wrong("storage/day_file.cpp", '"food/consumption.h"'))
        self.assertTrue(self.wrong("core/program.h", '"storage/day_file.h"'))
        self.assertTrue(self.wrong("core/store.h", '"core/program.h"'))
        self.assertTrue(self.wrong("days/open_day.cpp", '"core/frame/startup.h"'))
        self.assertFalse(self.wrong("food/consumption.cpp", '"storage/day_file.h"'))
        self.assertFalse(self.wrong("storage/day_file.cpp", '"language/common_texts.h"'))

    def test_only_the_program_and_the_frame_know_the_frame(self):
        for path in ("core/program.cpp", "days/wizard.h", "food/details.cpp", "nutrition/totals.cpp",
                     "days/browser_dialog.cpp", "platform/qt/look.cpp"):
            self.assertTrue(self.wrong(path, '"core/frame/commands.h"'), path)
        for path in ("main.cpp", "core/frame/startup.cpp", "core/frame/main_window.cpp"):
            self.assertFalse(self.wrong(path, '"core/frame/arrangement.h"'), path)

    def test_the_bottom_knows_of_other_rooms_only_the_text_tables(self):
        self.assertTrue(self.wrong("core/program.h", '"language/language_file.h"'))
        self.assertFalse(self.wrong("core/program.h", '"language/tables.h"'))

    def test_a_room_may_not_know_the_window_of_another(self):
        self.assertTrue(self.wrong("days/browser_dialog.cpp", '"food/food_lists_window.h"'))
        self.assertFalse(self.wrong("days/browser_dialog.cpp", '"days/browser_dialog.h"'))

    def test_two_headers_may_not_give_one_name_to_types(self):
        first = {"output/eaten_foods.h": "namespace kelvora {\nstruct Eaten {\n  int x;\n};\n"}
        self.assertTrue(names_given_twice(first | {"food/often.h": "class Eaten : public Food {\n"}))
        self.assertFalse(names_given_twice(first | {"food/often.h": "struct Eaten;\nclass Often {\n"}))
        self.assertFalse(names_given_twice(first | {"food/often.cpp": "struct Eaten {\n"}))


if __name__ == "__main__":
    unittest.main()
