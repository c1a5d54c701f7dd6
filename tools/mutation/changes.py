# SPDX-License-Identifier: MIT
"""The changes that a mutation run makes to a source file: one small change of one line each."""
import collections
import hashlib
import re

# A change: line (from 1), column (from 0), the text taken out and the one put in. The key names the change by
# what its line says and not by where it stands, so that a sample stays the same when a file moves or grows.
Change = collections.namedtuple("Change", "file line column old new key")

HIDDEN = re.compile(
    r"""//[^\n]*|/\*.*?\*/|R"\(.*?\)"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])'""", re.DOTALL)

# What is looked for, and what takes its place. Binary operators are known by the blanks that the formatter sets.
SWAPS = [(re.compile(old), new) for old, new in [
    (r"(?<= )==(?= )", "!="), (r"(?<= )!=(?= )", "=="),
    (r"(?<= )<(?= )", "<="), (r"(?<= )<=(?= )", "<"),
    (r"(?<= )>(?= )", ">="), (r"(?<= )>=(?= )", ">"),
    (r"(?<= )&&(?= )", "||"), (r"(?<= )\|\|(?= )", "&&"),
    (r"(?<= )\+(?= )", "-"), (r"(?<= )-(?= )", "+"),
    (r"(?<= )\*(?= )", "/"), (r"(?<= )/(?= )", "*"),
    (r"\+\+", "--"), (r"(?<= )\+=(?= )", "-="), (r"(?<= )-=(?= )", "+="),
    (r"!(?=[\w(])", ""),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"\bstd::min\b", "std::max"), (r"\bstd::max\b", "std::min"),
    (r"\bcontinue(?=;)", "break"), (r"\bbreak(?=;)", "continue"),
]]
NUMBER = re.compile(r"(?<![\w.'])\d+(?![\w.'])")
CONDITION = re.compile(r"\bif \(")
NO_STATEMENT = r"(?!return\b|using\b|else\b|case\b|if\b|for\b|while\b|switch\b|do\b|static_assert\b)"
STATEMENT = re.compile(
    r"^\s+" + NO_STATEMENT + r"\*?[A-Za-z_][\w:.>\[\]()-]*(\(.*\)| (=|\+=|-=|\|=) .+|\+\+|--);$")
BEFORE_A_STATEMENT = ("{", "}", ";", ":", ")", "else")


def masked(text):
    """The text with blanks for what comments and literals hold, every other character at its place."""
    return HIDDEN.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def closing(line, opening):
    """Where the bracket that stands open there is closed; -1 if not on this line."""
    depth = 0
    for at in range(opening, len(line)):
        depth += {"(": 1, ")": -1}.get(line[at], 0)
        if depth == 0:
            return at
    return -1


def swaps(line):
    for pattern, new in SWAPS:
        for found in pattern.finditer(line):
            yield found.start(), found.group(), new
    for found in NUMBER.finditer(line):
        yield found.start(), found.group(), str(int(found.group()) + 1)


def conditions(line):
    """Branches that are always taken, and such that never are."""
    for found in CONDITION.finditer(line):
        opening = found.end() - 1
        end = closing(line, opening)
        condition = line[opening + 1:end]
        if end < 0 or ";" in condition or " = " in condition:
            continue
        for new in ("true", "false"):
            yield opening + 1, condition, new


def statements(line, before):
    """A statement of one line that is left out."""
    if STATEMENT.match(line) and line.count("(") == line.count(")") and before.endswith(BEFORE_A_STATEMENT):
        start = len(line) - len(line.lstrip())
        yield start, line[start:], ";"


def changes(file, text):
    """All changes to a file; `file` is its path."""
    seen = collections.Counter()
    before = "{"
    for number, (line, real) in enumerate(zip(masked(text).split("\n"), text.split("\n")), start=1):
        line = line.rstrip()
        if not line.strip() or line.lstrip().startswith(("#", "static_assert")):
            continue
        seen[real.strip()] += 1
        found = list(swaps(line)) + list(conditions(line)) + list(statements(line, before))
        before = line
        indentation = len(line) - len(line.lstrip())
        for column, old, new in found:
            name = (file.name, real.strip(), seen[real.strip()], column - indentation, old, new)
            key = hashlib.sha256("\n".join(map(str, name)).encode()).hexdigest()[:12]
            yield Change(file, number, column, real[column:column + len(old)], new, key)


def sample(all_changes, count, seed):
    """The same changes for one seed, as long as their lines say what they say."""
    def rank(change):
        return hashlib.sha256(f"{seed} {change.key}".encode()).hexdigest()
    return sorted(sorted(all_changes, key=rank)[:count], key=lambda change: (change.file, change.line))


def changed(text, change):
    lines = text.split("\n")
    line = lines[change.line - 1]
    end = change.column + len(change.old)
    lines[change.line - 1] = line[:change.column] + change.new + line[end:]
    return "\n".join(lines)
