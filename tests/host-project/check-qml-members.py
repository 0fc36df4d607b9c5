#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 QuorvaMedia
# SPDX-License-Identifier: Apache-2.0
"""Fails when a QML file uses a member the installed module does not declare, where
qmllint cannot tell: a signal handler's parameter of one of the module's types
(onOfferOpened: offer => offer.offerName), and a member of a singleton or type named
by the module (QVService.gdprApplies, QVTheme.Dark, QVDevice.Phone).

Usage: check-qml-members.py MODULE.qmltypes FILE.qml...
"""
import re
import sys

# What every object has: QObject's own members and QML's additions.
OBJECT_MEMBERS = {"objectName", "destroyed", "deleteLater", "toString", "connect", "disconnect"}


def components(qmltypes):
    """Each component's name, its exported QML names, prototype and member names."""
    found = {}
    for block in re.split(r"\n    Component \{", qmltypes)[1:]:
        name = re.search(r'\n        name: "([^"]+)"', block).group(1)
        exports_list = re.search(r"exports: \[([^\]]*)\]", block)
        exports = re.findall(r'"[^"/]+/([^" ]+) [0-9.]+"', exports_list.group(1)) if exports_list else []
        prototype = re.search(r'\n        prototype: "([^"]+)"', block)
        members = set(re.findall(r'\n        (?:Property|Signal|Method) \{\s*name: "([^"]+)"', block))
        for values in re.findall(r"values: \[([^\]]*)\]", block):
            members |= set(re.findall(r'"([^"]+)"', values))
        signals = {}
        for signal in re.finditer(r'\n        Signal \{ name: "([^"]+)" \}|\n        Signal \{\n(.*?)\n        \}', block, re.S):
            if signal.group(1):
                signals[signal.group(1)] = []
                continue
            name = re.search(r'name: "([^"]+)"', signal.group(2)).group(1)
            # A list parameter's elements have the type; the list itself has only length.
            signals[name] = [kind if "isList" not in rest else "list"
                             for kind, rest in re.findall(r'Parameter \{ name: "[^"]+"; type: "([^"]+)"([^}]*)\}', signal.group(2))]
        found[name] = {"exports": exports, "prototype": prototype.group(1) if prototype else None,
                       "members": members, "signals": signals}
    return found


def members_of(types, name):
    """The members of a component and its prototypes in the module; None when a prototype
    lies outside the module (Qt's own), whose members cannot be listed here."""
    if name == "list":
        return {"length"}
    members = set(OBJECT_MEMBERS)
    while name:
        if name not in types:
            return None if name not in ("QObject",) else members
        members |= types[name]["members"]
        name = types[name]["prototype"]
    return members


def main():
    types = components(open(sys.argv[1]).read())
    by_export = {export: name for name, t in types.items() for export in t["exports"]}
    handlers = {}  # onSignal -> its parameters' types, for every signal of the module
    for t in types.values():
        for signal, parameters in t["signals"].items():
            handlers["on" + signal[0].upper() + signal[1:]] = parameters
    failures = []
    for path in sys.argv[2:]:
        source = open(path).read()
        uses = []
        for match in re.finditer(r"\b(QV[A-Za-z]+)\.([A-Za-z_]\w*)", source):
            if match.group(1) in by_export:
                uses.append((match.start(), by_export[match.group(1)], match.group(2)))
        # A handler's parameters, named in an arrow function or a function expression,
        # within the handler's statement or block.
        pattern = r"\b(on[A-Z]\w*)\s*:\s*(?:function\s*)?\(?\s*([\w\s,]*?)\s*\)?\s*(?:=>|\{)"
        for match in re.finditer(pattern, source):
            kinds = handlers.get(match.group(1))
            if not kinds:
                continue
            body_end = source.find("\n        on", match.end())
            body = source[match.end():body_end if body_end > 0 else len(source)]
            for parameter, kind in zip([p.strip() for p in match.group(2).split(",")], kinds):
                for use in re.finditer(r"\b%s\.([A-Za-z_]\w*)" % re.escape(parameter), body):
                    uses.append((match.end() + use.start(), kind, use.group(1)))
        for offset, kind, member in uses:
            known = members_of(types, kind)
            if known is not None and member not in known:
                line = source.count("\n", 0, offset) + 1
                failures.append(f'{path}:{line}: "{member}" is not a member of {kind} in the installed module')
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
