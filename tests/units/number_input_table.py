#!/usr/bin/env python3
"""Writes number_input_table.txt: what a numeric editor makes of several hundred inputs.

The rules are told here a second time, from what the user is promised and not from the library's
source, so that the two check each other. Run it from this folder after a change of the rules.
"""
import re

LOCALES = {"en": (".", ","), "de": (",", ".")}


class Rules:
    def __init__(self, locale="en", low=0.0, high=99.99, decimals=2, prefix="", suffix="", shown="", show=False,
                 special="", smart=False):
        self.__dict__.update(locals())
        self.point, self.group = LOCALES[locale]

    def fields(self):
        return [self.locale, repr(self.low), repr(self.high), str(self.decimals), self.prefix, self.suffix, self.shown,
                "1" if self.show else "0", self.special, "1" if self.smart else "0"]


def parse(text, point, group):
    """A number as the locale reads it: groups of three or none, one point, an exponent."""
    text = text.strip()
    match = re.fullmatch(r"([+-]?)([0-9%s]*)(?:%s([0-9]*))?(?:[eE]([+-]?[0-9]+))?"
                         % (re.escape(group), re.escape(point)), text)
    if not match:
        return None
    sign, whole, fraction, exponent = match.groups()
    if group in whole:
        if not re.fullmatch(r"[0-9]{1,3}(%s[0-9]{3})+" % re.escape(group), whole):
            return None
        whole = whole.replace(group, "")
    if not whole and not fraction:
        return None
    return float("%s%s.%se%s" % (sign, whole or "0", fraction or "0", exponent or "0"))


def shorten(number):
    """Six significant digits."""
    return "%g" % number


def judge(rules, text, pos):
    """State, text and whether the range may be told."""
    original, point, group = text, rules.point, rules.group
    suffix = rules.suffix
    bare = text
    if not (rules.special and bare == rules.special):
        if rules.prefix and bare.startswith(rules.prefix):
            bare = bare[len(rules.prefix):]
        # A suffix that is shown in a form of its own is taken off and put back in that form.
        if rules.shown and bare.endswith(rules.shown):
            suffix = rules.shown
        if suffix and bare.endswith(suffix):
            bare = bare[:-len(suffix)]
    cursor = pos - (len(bare) - len(bare.strip()))
    bare = bare.strip()
    dec = bare.find(point)
    if dec >= 0 and bare[dec + 1:dec + 2] == point and cursor == dec + 1:
        bare = bare[:dec + 1] + bare[dec + 2:]
    plus, minus = rules.high >= 0, rules.low <= 0
    only = rules.low == rules.high
    if not bare:
        return ("Invalid" if only else "Intermediate"), original, True
    if bare == "+" and plus or bare == "-" and minus:
        return "Intermediate", original, True
    if bare == point:
        return ("Intermediate" if rules.decimals else "Invalid"), original, False
    if len(bare) == 2 and bare[1] == point and (bare[0] == "+" and plus or bare[0] == "-" and minus):
        return "Intermediate", original, True
    if bare[0] == group:
        return "Invalid", original, True
    if len(bare) > 1:
        if dec >= 0:
            if not rules.decimals:
                return "Invalid", original, False
            if any(c.isspace() or c == group for c in bare[dec + 1:]):
                return "Invalid", original, True
        else:
            gap = [c.isspace() or c == group for c in bare[-2:]]
            if all(gap):
                return "Invalid", original, True
            if bare[-1].isspace():
                return "Invalid", original, True
        sign = bare.find("+") if "+" in bare else bare.find("-")
        if sign + 2 < len(bare) and bare[sign + 1] == "0" and bare[sign + 2] == "0":
            return "Invalid", original, True
    number = parse(bare, point, group)
    if number is None:
        if rules.high < 1000 and rules.low > -1000 and group in bare:
            return "Invalid", original, True
        if group + group in bare:
            return "Invalid", original, True
        number = parse(bare.replace(group, ""), point, group)
        if number is None:
            return "Invalid", original, True
    if rules.low <= number <= rules.high:
        end = bare.find(point)
        if end >= 0:
            bare = bare[:end + rules.decimals + 1]
        return "Acceptable", rules.prefix + bare + (suffix if rules.show else ""), True
    if only:
        return "Invalid", original, True
    if dec >= 0 and len(bare) - dec - 1 >= rules.decimals and number < rules.low:
        return "Invalid", original, True
    beyond = number > rules.high if number >= 0 else number < rules.low
    if not beyond and rules.decimals:
        return "Intermediate", original, True
    if rules.smart and 0 < number < rules.low:
        while number < rules.low:
            number *= 10
        return "Acceptable", shorten(number), True
    return "Invalid", original, True


EDITORS = [
    Rules(),
    Rules(low=-200000.0, high=200000.0, decimals=3),
    Rules(low=10.0, high=500.0),
    Rules(low=0.0, high=100.0, decimals=0),
    Rules(low=5.0, high=5.0),
    Rules(low=-10.0, high=-1.0, decimals=1),
    Rules(low=-8000.0, high=8000.0, decimals=4, prefix="~", suffix=" mm", shown=" mm", show=True),
    Rules(low=0.0, high=5000.0, prefix="R", suffix="mm", shown=" [mm]", show=True, special="none"),
    Rules(low=100.0, high=10000.0, decimals=0, smart=True),
    Rules("de"),
    Rules("de", low=-200000.0, high=200000.0, decimals=3),
    Rules("de", low=10.0, high=500.0, suffix="mm"),
    Rules("de", low=0.0, high=2000.0, decimals=0, suffix="mm", shown="mm", show=True),
]

# The point is "." and the group separator is "," here; each locale gets its own.
INPUTS = [
    "", " ", "+", "-", ".", "+.", "-.", "..", "0", "00", "000", "0.", "0.0", "0.00", "0.000", "007", "0.07", "-0", "-00",
    "+00", "-007", "+0.5", "-0.5", "-.5", ".5", "1", "5", "5.", "5.0", "5.00", "5.1", "5.12", "5.123", "5.1234567", "9",
    "9.99", "10", "10.0", "12.5", "42", "99", "99.99", "99.991", "100", "100.00", "101", "123", "499.99", "500", "500.01",
    "501", "999", "1000", "1,000", "1,00", "1,0", "10,00", "1,000.5", "1,,000", "1,", "1,,", ",1", "1.,", "1.5,0", "1 000",
    "1 ", " 1", "1  ", "1 5", "1. 5", "1.5 ", "8000", "8000.0001", "9999", "100000", "200000", "200000.001", "200,000",
    "2,000,000", "-1", "-1.0", "-1.05", "-5", "-5.55", "-9.95", "-10", "-10.1", "-11", "-8000", "-200000", "-200001",
    "--5", "+-5", "5-", "1.2.3", "1..5", "abc", "5a", "a5", "1e2", "1e5", "1e9", "5mm", "5 mm", "5.5mm", "5.25 mm", "mm",
    " mm", "5 [mm]", "5.125 [mm]", "[mm]", "R5", "R5mm", "R 5 [mm]", "R", "~5", "~5 mm", "~-5.5 mm", "~", "~ mm", "none",
    "5MM",
]


def main():
    with open("number_input_table.txt", "w", encoding="utf-8", newline="\n") as table:
        table.write("# locale|minimum|maximum|decimals|prefix|suffix|shown suffix|show|special text|smart|cursor|input"
                    "|state|text|tip\n")
        for rules in EDITORS:
            swap = str.maketrans({".": rules.point, ",": rules.group})
            for text in INPUTS:
                text = text.translate(swap)
                cursors = {len(text)}
                if rules.point * 2 in text:
                    cursors |= {text.index(rules.point * 2) + 1}
                for pos in sorted(cursors):
                    state, result, tip = judge(rules, text, pos)
                    table.write("|".join(rules.fields() + [str(pos), text, state, result, "1" if tip else "0"]) + "\n")


if __name__ == "__main__":
    main()
