"""Finds the places of a C++ source file that a mutant can change, and writes a copy with all of them in it.

A mutant is one small fault: a condition turned round, an operator taken for its neighbour, a number that is one too large, a
statement left out. The copy holds all mutants of a file at once; which of them is at work, the program learns from the
environment (see HEADER). So one build serves all mutants.

The finder reads tokens and brackets, not types, and leans on the layout that clang-format gives: blanks around operators
of two operands, none around the brackets of templates. What it finds need not compile; the caller drops what does not.
"""

import dataclasses
import re

HEADER = """#pragma once
#include <cstdlib>
#include <type_traits>

namespace mutant {
inline constexpr int kMost = 60000;
inline bool seen[kMost + 1] = {};
inline int Number(const char* name) {
  const char* const text = std::getenv(name);
  return text == nullptr ? 0 : std::atoi(text);
}
inline const int active = Number("CORVELLE_MUTANT");
inline const bool traced = std::getenv("CORVELLE_MUTANT_TRACE") != nullptr;

/// True where the mutant is at work. Never so while the compiler computes a constant.
constexpr bool On(int id) noexcept {
  if (std::is_constant_evaluated()) return false;
  if (traced) seen[id] = true;
  return active == id;
}
template <class T>
constexpr bool Flip(int id, const T& value) {
  return static_cast<bool>(value) != On(id);
}
template <class T>
  requires std::is_arithmetic_v<T>
constexpr T Shift(int id, T value) noexcept {
  if constexpr (std::is_same_v<T, bool>) return value != On(id);
  return On(id) ? static_cast<T>(value + 1) : value;
}
}  // namespace mutant
"""

TOKEN = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*)
  | (?P<text>(?:u8|[uUL])?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*"(?:_\w+)?)
  | (?P<number>\.?\d(?:[eEpP][+-]|[\w.']|::)*)
  | (?P<char>(?:u8|[uUL])?'(?:[^'\\\n]|\\.)+')
  | (?P<name>[A-Za-z_]\w*)
  | (?P<sign><=>|<<=|>>=|->\*|\.\.\.|::|->|\+\+|--|<<|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|\[\[|\]\]|.)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

OPENERS = {"(": ")", "[": "]", "{": "}", "[[": "]]"}
ASSIGNMENTS = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>="}
# What stands for the operator in the mutant.
SWAPS = {"&&": "||", "||": "&&", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "+": "-", "-": "+",
         "*": "/", "/": "*"}
# How loosely an operator binds: an expression around it ends at one that binds more loosely.
LOOSENESS = {"||": 9, "&&": 8, "|": 7, "^": 6, "&": 5, "==": 4, "!=": 4, "<": 3, "<=": 3, ">": 3, ">=": 3,
             "<=>": 3, "<<": 2, ">>": 2, "+": 1, "-": 1, "*": 0, "/": 0, "%": 0}
RELATIONS = {"==", "!=", "<", "<=", ">", ">="}
CONTROL = {"if", "for", "while", "switch", "do", "else", "case", "default", "try", "catch"}
NO_EXPRESSION = CONTROL | {"const", "auto", "static", "constexpr", "using", "typedef", "struct", "class", "enum",
                           "union", "static_assert", "return", "goto", "template", "friend", "namespace",
                           "throw", "extern", "inline", "static_cast"}
NUMBER_TYPES = r"(?:std::)?(?:u?int\w*|unsigned|unsigned int|long|short|char|float|double|size_t|uintptr_t)"
CONSTANT = re.compile(rf"\bconstexpr (?:static )?{NUMBER_TYPES} (k[A-Z]\w*) = ")


@dataclasses.dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int
    spaced: bool  # blanks on both sides


@dataclasses.dataclass
class Mutant:
    kind: str  # flip, swap, shift, drop
    start: int  # of the text that is replaced
    end: int
    changed: str  # what the mutant makes of it, for people
    id: int = 0
    file: str = ""
    line: int = 0
    before: str = ""  # what it replaces, for people


def tokens_of(text):
    found = []
    for match in TOKEN.finditer(text):
        kind = match.lastgroup if match.lastgroup != "mark" else "text"
        if kind in ("comment", "directive") or match.group().isspace():
            continue
        spaced = (match.start() > 0 and text[match.start() - 1].isspace()
                  and match.end() < len(text) and text[match.end()].isspace())
        found.append(Token(kind, match.group(), match.start(), match.end(), spaced))
    return found


def constants_of(text):
    """Names of the constants that are numbers, whose uses can be shifted."""
    return set(CONSTANT.findall(text))


class Finder:
    def __init__(self, text, constants=()):
        self.text = text
        self.constants = set(constants) | constants_of(text)
        self.tokens = tokens_of(text)
        self.partner = {}
        self.mutants = []
        self.taken = set()  # (kind, start, end, changed)
        stack = []
        for i, token in enumerate(self.tokens):
            if token.kind != "sign":
                continue
            if token.text in OPENERS:
                stack.append(i)
            elif token.text in OPENERS.values() and stack:
                # "]]" also ends an index within an index.
                if token.text == "]]" and self.tokens[stack[-1]].text == "[":
                    stack.pop()
                    if stack:
                        self.partner[stack.pop()] = i
                    continue
                self.partner[stack.pop()] = i
        self.opener = {closer: opener for opener, closer in self.partner.items()}

    def find(self):
        i = 0
        while i < len(self.tokens):
            if self.is_sign(i, "{") and i in self.partner and self.is_body(i):
                i = self.block(i)
            else:
                i += 1
        lines = [0] + [m.end() for m in re.finditer("\n", self.text)]
        kept = []
        for mutant in sorted(self.mutants, key=lambda m: (m.start, -m.end)):
            mutant.line = sum(1 for start in lines if start <= mutant.start)
            mutant.before = mutant.before or " ".join(self.text[mutant.start:mutant.end].split())
            kept.append(mutant)
        return kept

    # ---- structure ----

    def is_sign(self, i, text):
        return 0 <= i < len(self.tokens) and self.tokens[i].kind == "sign" and self.tokens[i].text == text

    def word(self, i):
        return self.tokens[i].text if 0 <= i < len(self.tokens) else ""

    def is_body(self, i):
        """True for the brace of a function's or a lambda's body."""
        j = i - 1
        while self.word(j) in ("const", "noexcept", "override", "final", "mutable", "constexpr"):
            j -= 1
        if self.is_sign(j, "]"):
            return True
        # A result after an arrow: back to the parentheses before it.
        k = j
        while k > 0 and (self.tokens[k].kind == "name" or self.word(k) in ("::", "*", "&", "<", ">", ",")):
            k -= 1
        if self.is_sign(k, "->") and self.is_sign(k - 1, ")"):
            return True
        if self.is_sign(j, ")"):
            return True
        # The last initialiser of a constructor may be in braces.
        return self.is_sign(j, "}") and self.tokens[i].spaced and self.in_initialisers(j)

    def in_initialisers(self, closer):
        opener = self.opener.get(closer)
        return opener is not None and self.tokens[opener - 1].kind == "name" and self.word(opener - 2) in (",", ":")

    def past(self, i):
        """The token after the one at i, or after its partner when it opens a bracket."""
        return self.partner.get(i, i) + 1

    def block(self, i):
        """Goes through the body of the function at i; returns the token after it."""
        last = self.last_statement(i)
        # A return may be left out where another one follows for sure.
        return self.inner_block(i, last is not None, last)

    def last_statement(self, i):
        """The start of the block's last statement if that is a return, else None."""
        end = self.partner[i]
        at, starts = i + 1, []
        while at < end:
            starts.append(at)
            at = self.skip_statement(at, end)
        return starts[-1] if starts and self.word(starts[-1]) == "return" else None

    def skip_statement(self, at, end):
        word = self.word(at)
        if self.is_sign(at, "{"):
            return self.past(at)
        if word in ("if", "for", "while", "switch", "catch"):
            at += 1
            if self.word(at) == "constexpr":
                at += 1
            at = self.skip_statement(self.past(at), end)
            return self.skip_statement(at + 1, end) if self.word(at) == "else" else at
        if word in ("do", "try", "else"):
            return self.skip_statement(at + 1, end)
        if word in ("case", "default"):
            while at < end and not self.is_sign(at, ":"):
                at = self.past(at)
            return at + 1
        while at < end and not self.is_sign(at, ";"):
            at = self.past(at)
        return min(at + 1, end)

    def statement(self, at, end, returns_after, last):
        word = self.word(at)
        if self.is_sign(at, "{"):
            return self.inner_block(at, returns_after, last)
        if word in ("if", "while", "switch", "catch"):
            head = at + 1
            if self.word(head) == "constexpr":
                return self.statement(self.past(head + 1), end, returns_after, last)
            if head not in self.partner:
                return at + 1
            self.head(head, word)
            at = self.statement(self.past(head), end, returns_after, last)
            return at
        if word == "for":
            self.loop_head(at + 1)
            return self.statement(self.past(at + 1), end, returns_after, last)
        if word in ("do", "else", "try"):
            return at + 1
        if word in ("case", "default"):
            return self.skip_statement(at, end)
        stop = at
        while stop < end and not self.is_sign(stop, ";"):
            stop = self.past(stop)
        self.simple(at, min(stop, end), returns_after and at != last)
        return min(stop + 1, end)

    def inner_block(self, i, returns_after, last):
        end = self.partner[i]
        at = i + 1
        while at < end:
            at = self.statement(at, end, returns_after, last)
        return end + 1

    def head(self, opener, word):
        first, stop = opener + 1, self.partner[opener]
        at = first
        while at < stop:
            if self.is_sign(at, ";"):
                self.expressions(first, at)
                first = at + 1
            at = self.past(at)
        declares = any(self.is_sign(k, "=") for k in self.level(first, stop))
        if word in ("if", "while") and not declares:
            self.flip(first, stop)
        if word != "catch":
            self.expressions(first, stop)

    def loop_head(self, opener):
        stop = self.partner[opener]
        marks = [k for k in self.level(opener + 1, stop) if self.is_sign(k, ";")]
        if len(marks) == 2:
            self.expressions(opener + 1, marks[0])
            if marks[1] > marks[0] + 1:
                self.flip(marks[0] + 1, marks[1])
            self.expressions(marks[0] + 1, marks[1])
            self.expressions(marks[1] + 1, stop)
        else:
            self.expressions(opener + 1, stop)

    def level(self, first, stop):
        """The tokens of this level of brackets."""
        at = first
        while at < stop:
            yield at
            at = self.past(at)

    def simple(self, first, stop, may_drop_return):
        if first >= stop and not self.is_sign(first, ";"):
            return
        word = self.word(first)
        if word in ("using", "typedef", "static_assert", "struct", "class", "enum"):
            return
        words = {self.word(k) for k in (first, first + 1)}
        if word == "return":
            if first + 1 == stop or may_drop_return:
                self.drop(first, stop)
        elif word in ("break", "continue"):
            self.drop(first, stop)
        elif self.is_expression(first, stop):
            self.drop(first, stop)
        if "constexpr" in words:
            # What the compiler computes no mutant reaches, but the body of a lambda is run.
            self.lambdas(first, stop)
        else:
            self.expressions(first, stop)

    def is_expression(self, first, stop):
        if first >= stop or self.word(first) in NO_EXPRESSION:
            return False
        token = self.tokens[first]
        if token.kind != "name" and token.text not in ("++", "--", "*", "(", "::"):
            return False
        if ".reserve(" in self.text[token.start:self.tokens[stop - 1].end]:
            return False  # only a matter of speed
        before = None
        acts = token.text in ("++", "--")
        for k in self.level(first, stop):
            now = self.tokens[k]
            if before is not None and now.kind == "name":
                was = self.tokens[before]
                if was.kind == "name":
                    return False
                if was.text in (">", "&", "*", "&&") and not was.spaced and before != first:
                    return False
            acts = acts or now.text in ("(", "++", "--") or now.text in ASSIGNMENTS
            before = k
        return acts

    # ---- expressions ----

    def lambdas(self, first, stop):
        for k in range(first, stop):
            if self.is_sign(k, "{") and k in self.partner and self.is_body(k):
                self.block(k)

    def expressions(self, first, stop):
        """Mutants of all operators and numbers between the tokens, lambdas included."""
        at = first
        while at < stop:
            token = self.tokens[at]
            if token.text == "{" and at in self.partner and self.is_body(at):
                at = self.block(at)
                continue
            if token.text == "[[" and at in self.partner:
                at = self.past(at)
                continue
            self.operator(at, first, stop)
            self.number(at)
            at += 1

    def operator(self, at, first, stop):
        token = self.tokens[at]
        if token.kind != "sign":
            return
        if token.text == "?":
            left, right = self.around(at, first, stop, 10)
            self.flip(left, at)
            return
        if token.text == "!" and self.word(at - 1) in ("(", ",", "=", "return", "{", ":", "?"):
            left, right = self.around(at, first, stop, 9)
            self.flip(at, right)
            return
        # A bracket of a template has no blanks beside it.
        if token.text not in LOOSENESS or not token.spaced:
            return
        left, right = self.around(at, first, stop, LOOSENESS[token.text])
        if left >= at or right <= at + 1:
            return
        if token.text in ("&&", "||"):
            inner_left, _ = self.around(at, first, stop, LOOSENESS[token.text], True)
            _, inner_right = self.around(at, first, stop, LOOSENESS[token.text], True)
            self.flip(inner_left, at)
            self.flip(at + 1, inner_right)
        elif token.text in RELATIONS:
            self.flip(left, right)
        # Texts can be joined but not subtracted.
        if token.text in SWAPS and "text" not in (self.tokens[at - 1].kind, self.tokens[at + 1].kind):
            self.swap(at, left, right)

    def around(self, at, first, stop, looseness, nearest=False):
        """The expression around the operator: up to what binds more loosely, or (nearest) as loosely."""
        def ends(k):
            token = self.tokens[k]
            if token.text in (",", ";", "?", ":", "return", "co_return") or token.text in ASSIGNMENTS:
                return True
            if token.kind == "sign" and token.text in LOOSENESS and token.spaced:
                other = LOOSENESS[token.text]
                return other > looseness or (nearest and other == looseness)
            return False

        left = at
        while left > first:
            k = left - 1
            if k in self.opener:
                if self.opener[k] < first:
                    break
                left = self.opener[k]
                continue
            if k in self.partner or ends(k):
                break
            left = k
        right = at + 1
        while right < stop:
            if right in self.opener or ends(right):
                break
            right = self.past(right)
        return left, right

    def number(self, at):
        token = self.tokens[at]
        if token.kind == "number":
            self.shift(at, f"{token.text} + 1")
        elif token.text in ("true", "false"):
            self.shift(at, "false" if token.text == "true" else "true")
        elif token.kind == "name" and token.text in self.constants:
            # A template's argument is a constant of the compiler; a name after "::" has its class before it.
            if self.is_sign(at + 1, ">") and not self.tokens[at + 1].spaced:
                return
            if self.word(at - 1) in ("::", "<") and not self.tokens[at - 1].spaced:
                return
            self.shift(at, f"{token.text} + 1")

    # ---- what is noted ----

    def note(self, kind, start, end, changed, before=""):
        mark = (kind, start, end, changed)
        if mark not in self.taken:
            self.taken.add(mark)
            self.mutants.append(Mutant(kind, start, end, changed, before=before))

    def span(self, first, stop):
        return self.tokens[first].start, self.tokens[stop - 1].end

    def flip(self, first, stop):
        if first >= stop:
            return
        start, end = self.span(first, stop)
        text = self.text[start:end]
        if text in ("true", "false"):
            return
        plain = re.fullmatch(r"!?[\w.:>-]+(\([^()]*\))?", text)
        changed = f"!({text})"
        if plain:
            changed = text[1:] if text.startswith("!") else f"!{text}"
        self.note("flip", start, end, " ".join(changed.split()))

    def swap(self, at, first, stop):
        start, end = self.span(first, stop)
        # On one line and without comments, so that the lines of the copy are those of the source.
        words = []
        for k in range(first, stop):
            gap = k > first and self.tokens[k - 1].end < self.tokens[k].start
            words.append((" " if gap else "") + (SWAPS[self.word(k)] if k == at else self.word(k)))
        self.note("swap", start, end, "".join(words))

    def shift(self, at, changed):
        token = self.tokens[at]
        # With the two tokens before it, to tell the numbers of a line apart.
        around = self.text[self.tokens[max(at - 2, 0)].start:token.start]
        around = " ".join(around.split()) + (" " if around[-1:].isspace() else "")
        self.note("shift", token.start, token.end, around + changed, around + token.text)

    def drop(self, first, stop):
        start = self.tokens[first].start
        self.note("drop", start, self.tokens[stop].end, ";")


def find(text, constants=()):
    """The mutants of a source file, in the order of their places."""
    return Finder(text, constants).find()


def render(text, mutants):
    """The text with all mutants in it. Those whose places cut across each other must not be given."""
    places = {}
    for mutant in mutants:
        places.setdefault((mutant.start, mutant.end), []).append(mutant)
    order = sorted(places, key=lambda place: (place[0], -place[1]))

    def wrap(body, group):
        swaps = [m for m in group if m.kind == "swap"]
        if swaps:
            body = "(" + "".join(f"::mutant::On({m.id}) ? ({m.changed}) : " for m in swaps) + f"({body}))"
        for mutant in group:
            if mutant.kind == "flip":
                body = f"::mutant::Flip({mutant.id}, {body})"
            elif mutant.kind == "shift":
                body = f"::mutant::Shift({mutant.id}, {body})"
        for mutant in group:
            if mutant.kind == "drop":
                body = f"{{if (!::mutant::On({mutant.id})) {{{body}}}}}"
        return body

    at = 0

    def inner(start, end):
        nonlocal at
        out, here = [], start
        while at < len(order) and order[at][0] < end:
            place = order[at]
            at += 1
            out.append(text[here:place[0]])
            out.append(wrap(inner(*place), places[place]))
            here = place[1]
        out.append(text[here:end])
        return "".join(out)

    return inner(0, len(text))


def without_crossings(mutants):
    """The mutants but for those whose place begins within another one's and ends outside it."""
    kept, open_places = [], []
    for mutant in sorted(mutants, key=lambda m: (m.start, -m.end)):
        while open_places and open_places[-1] <= mutant.start:
            open_places.pop()
        if open_places and mutant.end > open_places[-1]:
            continue
        open_places.append(mutant.end)
        kept.append(mutant)
    return kept
