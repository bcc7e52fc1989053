"""The public names, as Doxygen's XML has them."""

import dataclasses
import pathlib
import xml.etree.ElementTree as tree


@dataclasses.dataclass
class Name:
    name: str  # with its namespace and its record
    kind: str  # function, variable, define, enumvalue, typedef, struct, class, file, ...
    place: str  # the page and the anchor in it
    said: str  # the first sentence


def place_of(identifier, page):
    anchor = identifier.removeprefix(f"{page}_1") if identifier != page else ""
    return f"{page}.html" + (f"#{anchor}" if anchor else "")


def said_of(element):
    texts = ("".join(element.find(part).itertext()).strip() for part in ("briefdescription", "detaileddescription"))
    return next((" ".join(text.split()) for text in texts if text), "")


def public_names(folder):
    """Every name of the headers; what is private in C++ is none."""
    for path in sorted(pathlib.Path(folder).glob("*_8h*.xml")) + sorted(pathlib.Path(folder).glob("[cns]*.xml")):
        compound = tree.parse(path).getroot().find("compounddef")
        if compound is None or compound.get("kind") == "page" or compound.get("prot", "public") != "public":
            continue
        page = compound.get("id")
        scope = compound.findtext("compoundname")
        is_scope = compound.get("kind") in ("struct", "class", "namespace")
        yield Name(scope, compound.get("kind"), f"{page}.html", said_of(compound))
        for member in compound.iter("memberdef"):
            if member.get("prot") != "public" or not member.get("id").startswith(page):
                continue
            name = member.findtext("name")
            named = f"{scope}::{name}" if is_scope else name
            if name and not name.startswith("@"):
                yield Name(named, member.get("kind"), place_of(member.get("id"), page), said_of(member))
            for value in member.iter("enumvalue"):
                inner = value.findtext("name")
                outer = f"{named}::{inner}" if is_scope else inner
                yield Name(outer, "enumvalue", place_of(value.get("id"), page), said_of(value))
