"""Writes copies of sources with all their mutants in, each asleep until it is called by its number."""


def mutated(source, points):
    """points: pairs of a number and a point of that source."""
    edits = []  # Place, order at that place, bytes replaced, text.
    for number, point in points:
        if point.inside is not None:
            edits.append((point.begin, (2, 0), point.end - point.begin, point.inside.format(n=number)))
            continue
        # What closes comes before what opens; inner parts close first, outer ones open first.
        edits.append((point.begin, (1, -point.end), 0, point.before.format(n=number)))
        edits.append((point.end, (0, -point.begin), 0, point.after.format(n=number)))
    written, at = ['#include "mutants.h"\n#line 1\n'], 0
    for place, _, replaced, text in sorted(edits, key=lambda edit: edit[:2]):
        written.append(source[at:place])
        written.append(text)
        at = place + replaced
    written.append(source[at:])
    return "".join(written)
