"""What Doxygen reads instead of a file of the project.

The header says in C what a host's author needs beside the code. For the site each function also
gets its picture, its cost where that is constant, the entries of behaviours.md that tell of it,
and, where it is another name of a function, that function's text. In the Markdown pages names of
functions become links, and each entry of behaviours.md gets an anchor.

    filter.py FILE               prints the file for Doxygen
    filter.py --gallery FILE     writes the page with all pictures; fails where docs/choosing.md
                                 leaves out a function
    filter.py --check FOLDER     fails where a function has no picture in the site

Run in the root of the project.
"""

import pathlib
import re
import sys

BEHAVIOURS = pathlib.Path("docs/behaviours.md")
EXPORTS = pathlib.Path("src/exports.txt")
PAGES = {path.name: path.stem for path in pathlib.Path("docs").glob("*.md")}
PAGES["CHANGELOG.md"] = "CHANGELOG"

COMMENT_AND_DECLARATION = re.compile(
    r"/\*\*(?P<text>(?:(?!\*/).)*)\*/\n(?=PLANEGEO_API\b[^(]*?\b(?P<name>\w+)\()", re.S)
PORTABILITY = re.compile(
    r"^/\* Define PLANEGEO_STATIC.*?^#ifdef __cplusplus", re.M | re.S)


def subjects():
    """The exported names under the headings of their list."""
    found = {}
    heading = None
    for line in EXPORTS.read_text().splitlines():
        if line.startswith("# "):
            heading = line[2:]
        elif line:
            found.setdefault(heading, []).append(line)
    return found


def exported():
    return {name for names in subjects().values() for name in names}


def page_label(stem):
    return "mainpage" if stem == "index" else "page_" + stem.lower().replace("-", "_")


def first_naming(text):
    """The first sentence that names a function; later ones name ways out."""
    return next((sentence for sentence in re.split(r"(?<=\.)\s", text) if "`" in sentence), "")


class Behaviours:
    """The entries of behaviours.md: bold titles, in lists or at the head of a paragraph."""

    TITLE = re.compile(r"^(?P<bullet>- )?\*\*(?P<title>.+?)\*\*", re.M | re.S)

    def __init__(self, names):
        text = BEHAVIOURS.read_text()
        starts = [match.start() for match in self.TITLE.finditer(text)] + [len(text)]
        self.about = {name: [] for name in names}
        for number, match in enumerate(self.TITLE.finditer(text)):
            body = re.split(r"^#", text[match.end():starts[number + 1]], flags=re.M)[0]
            title = " ".join(match["title"].replace("`", "").split()).rstrip(".")
            subjects_of_it = self.names_in(match["title"]) or self.names_in(first_naming(body))
            for name in dict.fromkeys(subjects_of_it):
                if name in self.about:
                    self.about[name].append((f"behaviour_{number}", title))

    @staticmethod
    def names_in(text):
        return re.findall(r"`(\w+)`", text)

    def anchored(self, text):
        number = -1

        def anchor(match):
            nonlocal number
            number += 1
            # Doxygen gives up on asterisks around links.
            return f"{match['bullet'] or ''}@anchor behaviour_{number} <b>{match['title']}</b>"

        return self.TITLE.sub(anchor, text)


def with_picture(comment, picture):
    """Puts the picture between the text and the first parameter or result."""
    place = re.search(r"^ \* @(?:param|return|copydetails)", comment, re.M)
    at = place.start() if place else len(comment)
    return comment[:at] + " *\n" + picture + comment[at:]


def header(text):
    names = exported()
    behaviours = Behaviours(names)

    def extended(match):
        name, comment = match["name"], match["text"].rstrip().rstrip("*").rstrip()
        lines = [comment]
        original = re.search(r"(?:same function as|As) (\w+)\(\)", comment)
        is_short = "@param" not in comment and "@return" not in comment
        if original and is_short:
            lines += ["", f"@copydetails {original[1]}"]
        if "Cost: " not in comment and not (original and is_short):
            lines += ["", "Cost: constant, no memory."]
        if behaviours.about.get(name):
            lines += ["", "@par Behaviours to know"]
            lines += [f"- @ref {anchor} \"{title}\"" for anchor, title in behaviours.about[name]]
        body = "\n".join([lines[0]] + [" * " + line for line in lines[1:]])
        body = with_picture(body, f" * @image html {name}.svg\n *\n")
        return f"/**{body}\n */\n"

    text = PORTABILITY.sub("#ifdef __cplusplus", text)
    # A group called arcs would make a link of the word wherever @see has it.
    text = text.replace("@defgroup ", "@defgroup subject_")
    text = COMMENT_AND_DECLARATION.sub(extended, text)
    return re.sub(r"^ \* Cost: (\w)", lambda match: f" * @par Cost\n * {match[1].upper()}", text,
                  flags=re.M)


def linked(text, to_page="@ref"):
    """Names of functions and of pages become links, outside of code blocks."""
    names = exported()

    def name_link(match):
        name = match[1]
        return f"@ref {name} \"{name}\"" if name in names else match[0]

    def page_link(match):
        words, target = match[1], match[2]
        name = target.split("/")[-1]
        if name in PAGES:
            return f"{to_page} {page_label(PAGES[name])} \"{words}\""
        if name == "planegeo.h":
            return f"<a href=\"modules.html\">{words}</a>"
        if re.match(r"https?:", target):
            return match[0]
        return f"{words} (`{target.removeprefix('../')}`)"

    out = []
    in_code = False
    for line in text.splitlines():
        if line.startswith("```"):
            in_code = not in_code
        if not in_code and not line.startswith("    "):
            line = re.sub(r"(?<!!)\[([^]]*)\]\(([^)#]*)\)", page_link, line)
            line = re.sub(r"`(\w+)(?:\(\))?`", name_link, line)
            line = re.sub(r"\*\*(.+?)\*\*", r"<b>\1</b>", line)  # Doxygen takes few of them
        out.append(line)
    return "\n".join(out) + "\n"


def with_programs(text):
    """A link to a program, alone on its line, becomes the program."""
    def program(match):
        path = pathlib.Path(match[1])
        return f"```{path.suffix}\n{path.read_text()}```"

    return re.sub(r"^\[.*\]\(\.\./(examples/.*\.\w+)\)$", program, text, flags=re.M)


def markdown(path, text):
    label = page_label(path.stem)
    text = re.sub(r"^# (.*)$", lambda match: f"# {match[1]} {{#{label}}}", text, count=1, flags=re.M)
    if path.resolve() == BEHAVIOURS.resolve():
        text = Behaviours(exported()).anchored(text)
    text = re.sub(r"!\[(.*)\]\((?:.*/)?(.*)\)", r'@image html \2 "\1"', text)
    return main_page(text) if path.stem == "index" else linked(with_programs(text))


def main_page(text):
    """The main page, with the gallery and the guides that it does not name."""
    gallery_line = "- @subpage page_gallery \"Gallery\": every function, drawn by calling it"
    others = [f"- @subpage {page_label(stem)}" for name, stem in sorted(PAGES.items())
              if stem != "index" and f"{name})" not in text]
    text = text.replace("<!-- gallery -->", gallery_line)
    text = text.replace("<!-- other pages -->", "\n".join(others))
    return linked(text, to_page="@subpage")


def check_choosing():
    """Every function stands in the tables by question."""
    choosing = pathlib.Path("docs/choosing.md").read_text()
    missing = [name for name in sorted(exported()) if f"`{name}`" not in choosing]
    if missing:
        sys.exit(f"not in docs/choosing.md: {missing}")


def check_site(site):
    """Every function stands on the page of its subject, with its picture and its cost."""
    described = set()
    for page in site.glob("group__*.html"):
        for section in page.read_text().split('<h2 class="memtitle">')[1:]:
            name = re.search(r"data=\"(\w+)\.svg\"", section)
            if name and f"</span>{name[1]}()" in section and "<dt>Cost</dt>" in section:
                described.add(name[1])
    missing = sorted(exported() - described)
    if missing:
        sys.exit(f"without picture or cost in the site: {missing}")


def gallery():
    lines = ["# Gallery", "",
             "Every function, drawn by calling it: what goes in is blue, what comes out orange."]
    for heading, names in subjects().items():
        lines += ["", "## " + heading[0].upper() + heading[1:], "", '<div class="gallery">']
        for name in names:
            lines.append(f"<div>@ref {name}\n@image html {name}.svg\n</div>")
        lines.append("</div>")
    return "\n".join(lines) + "\n"


def main(arguments):
    if arguments[0] == "--gallery":
        check_choosing()
        pathlib.Path(arguments[1]).write_text(gallery())
        return
    if arguments[0] == "--check":
        check_site(pathlib.Path(arguments[1]))
        return
    path = pathlib.Path(arguments[0])
    text = path.read_text()
    sys.stdout.write(header(text) if path.suffix == ".h" else markdown(path, text))


main(sys.argv[1:])
