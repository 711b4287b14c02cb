#!/usr/bin/env python3
"""Writes test doubles of the host object and of documents.

usage: generate_fakes.py HEADER_FOLDER OUTPUT_FOLDER

Reads the pure virtual operations of all headers in HEADER_FOLDER and writes FakeHost, FakeDocument and operations
(.h and .cpp each). Every override records its call, throws if that was ordered, then calls the function that the
test has set, else returns a default-constructed value.

The function of `setPref` is `onSetPref`. Where a name has several signatures the number of arguments follows:
`onIsToolActive1`, `onIsToolActive3`. Where two interfaces declare the very same operation one override serves both;
it bears the name of the first interface ("HostApplication.isCycleView").
"""

import pathlib
import re
import sys
from dataclasses import dataclass

DOCUMENT_BASES = ["DOC_Interface", "DOC_Transfer", "DOC_Lock", "DOC_Playback", "DOC_Geometry", "DOC_Settings",
                  "DOC_Save", "DOC_Display", "DOC_Members"]
CAMERA = "DOC_Camera"

CLASS = re.compile(r"^class (\w+)(?: final)?\s*(?::([^{;]*))?\{(.*?)(?:\n|(?<=\{))\};", re.S | re.M)
OPERATION = re.compile(r"\bvirtual\s+([^;(){}~]+?[\s*&])(\w+)\s*\(([^()]*)\)\s*(?:const\s*)?=\s*0\s*;")


@dataclass
class Argument:
    type: str
    name: str

    def recorded(self):
        """How the record keeps the argument. What the operation fills has no value yet."""
        if self.type.endswith("&") and not self.type.startswith("const ") and "exception" not in self.type:
            return 'QStringLiteral("out")'
        return f'recordedArgument({self.name}, "{bare(self.type)}")'


@dataclass
class Operation:
    interface: str
    result: str
    name: str
    arguments: list
    function: str = ""

    @property
    def full_name(self):
        return f"{self.interface}.{self.name}"

    @property
    def signature(self):
        return self.name, tuple(a.type for a in self.arguments)

    @property
    def parameters(self):
        return ", ".join(f"{a.type} {a.name}" for a in self.arguments)

    def declaration(self):
        return f"    {self.result} {self.name}({self.parameters}) override;"

    def member(self):
        types = ", ".join(a.type for a in self.arguments)
        return f"    std::function<{self.result}({types})> {self.function};"

    def definition(self, owner, template=""):
        names = ", ".join(a.name for a in self.arguments)
        recorded = ", ".join(a.recorded() for a in self.arguments)
        finish = f"    if ({self.function}) {{\n        return {self.function}({names});\n    }}\n"
        if self.result != "void":
            finish += "    return {};\n"
        return (f"{template}{self.result} {owner}::{self.name}({self.parameters}) {{\n"
                f'    calls.record({{"{self.interface}", "{self.name}", {{{recorded}}}}});\n{finish}}}\n')


def bare(type_name):
    return re.sub(r"^const |\s*&$", "", type_name)


def split_arguments(text):
    """Splits at the commas that stand outside of angle brackets."""
    parts, depth, start = [], 0, 0
    for i, c in enumerate(text):
        depth += (c == "<") - (c == ">")
        if c == "," and depth == 0:
            parts.append(text[start:i])
            start = i + 1
    parts.append(text[start:])
    return [p for p in (" ".join(p.split()) for p in parts) if p]


def parse_argument(text, where):
    match = re.fullmatch(r"(.+?[\s*&>])\s*(\w+)", text)
    if not match or match[2] in ("int", "bool", "long", "float", "double", "const"):
        sys.exit(f"{where}: argument without a name: {text}")
    return Argument(match[1].strip(), match[2])


def parse_operations(interface, body):
    operations = []
    for result, name, arguments in OPERATION.findall(body):
        where = f"{interface}.{name}"
        parsed = [parse_argument(a, where) for a in split_arguments(arguments)]
        operations.append(Operation(interface, " ".join(result.split()), name, parsed))
    declared = body.count(") = 0;")
    if len(operations) != declared:
        sys.exit(f"{interface}: {declared} pure virtuals, but {len(operations)} understood")
    return operations


def read_interfaces(folder):
    """All classes of the folder: name -> (names of bases, operations)."""
    interfaces = {}
    for header in sorted(folder.glob("*.h")):
        text = re.sub(r"//[^\n]*|/\*.*?\*/", "", header.read_text(encoding="utf-8"), flags=re.S)
        for name, bases, body in CLASS.findall(text):
            interfaces[name] = (re.findall(r"(?:public|virtual)\s+(\w+)", bases), parse_operations(name, body))
    return interfaces


def collect(interfaces, names):
    """The operations of the interfaces as one class has to override them, each with the name of its function."""
    merged = {}
    for name in names:
        for operation in interfaces[name][1]:
            merged.setdefault(operation.signature, operation)
    operations = list(merged.values())
    for operation in operations:
        unique = sum(other.name == operation.name for other in operations) == 1
        suffix = "" if unique else str(len(operation.arguments))
        operation.function = "on" + operation.name[0].upper() + operation.name[1:] + suffix
    if len({o.function for o in operations}) != len(operations):
        sys.exit(f"{names}: overloads with the same number of arguments")
    return operations


def includes(interfaces):
    return "".join(f'#include "livecontrol/interface/{name}.h"\n' for name in interfaces)


def header(body, headers):
    return (f'// Generated.\n#pragma once\n\n#include "tests/support/RecordedArgument.h"\n\n{includes(headers)}\n'
            f"#include <functional>\n\n{body}")


def block(operations):
    return "\n".join(o.declaration() for o in operations) + "\n\n" + "\n".join(o.member() for o in operations)


def host_files(operations):
    body = ("/// A host that records its calls and does what the test has set.\n"
            "class FakeHost : public HostObject {\npublic:\n    FakeHost();\n    ~FakeHost() override;\n"
            "    Q_DISABLE_COPY_MOVE(FakeHost)\n\n    CallRecorder calls;\n\n" + block(operations) + "\n};\n")
    source = '#include "tests/support/FakeHost.h"\n\nFakeHost::FakeHost() = default;\nFakeHost::~FakeHost() = default;\n\n'
    return header(body, ["HostObject", "records"]), source + "\n".join(o.definition("FakeHost") for o in operations)


def document_files(operations, camera_operations):
    """FakeDocument and FakeCamera differ in their first base, so their common part is a template on it."""
    others = "".join(f", public {base}" for base in DOCUMENT_BASES[1:])
    body = f"""template <class FirstBase>
class FakeDocumentOf : public FirstBase{others} {{
public:
    explicit FakeDocumentOf(CallRecorder& recorder);
    ~FakeDocumentOf() override;
    Q_DISABLE_COPY_MOVE(FakeDocumentOf)

    CallRecorder& calls;

{block(operations)}
}};

extern template class FakeDocumentOf<DOC_Interface>;
extern template class FakeDocumentOf<{CAMERA}>;

/// A file document that records its calls, mostly where the host does, and does what the test has set.
class FakeDocument : public FakeDocumentOf<DOC_Interface> {{
public:
    explicit FakeDocument(CallRecorder& recorder);
    ~FakeDocument() override;
}};

/// The same as a camera document.
class FakeCamera : public FakeDocumentOf<{CAMERA}> {{
public:
    explicit FakeCamera(CallRecorder& recorder);
    ~FakeCamera() override;

{block(camera_operations)}
}};
"""
    template = "template <class FirstBase>\n"
    source = ('#include "tests/support/FakeDocument.h"\n\n'
              f"{template}FakeDocumentOf<FirstBase>::FakeDocumentOf(CallRecorder& recorder) : calls(recorder) {{}}\n\n"
              f"{template}FakeDocumentOf<FirstBase>::~FakeDocumentOf() = default;\n\n")
    source += "\n".join(o.definition("FakeDocumentOf<FirstBase>", template) for o in operations)
    source += f"\ntemplate class FakeDocumentOf<DOC_Interface>;\ntemplate class FakeDocumentOf<{CAMERA}>;\n"
    for name in ("Document", "Camera"):
        base = "DOC_Interface" if name == "Document" else CAMERA
        source += (f"\nFake{name}::Fake{name}(CallRecorder& recorder) : FakeDocumentOf<{base}>(recorder) {{}}\n"
                   f"Fake{name}::~Fake{name}() = default;\n")
    source += "\n" + "\n".join(o.definition("FakeCamera") for o in camera_operations)
    return header(body, [CAMERA] + DOCUMENT_BASES + ["records"]), source


def operation_files(host, document):
    def listing(function, operations):
        names = dict.fromkeys(o.full_name for o in operations)
        rows = "".join(f'        QStringLiteral("{n}"),\n' for n in names)
        return f"const QStringList& {function}() {{\n    static const QStringList names = {{\n{rows}    }};\n    return names;\n}}\n"

    body = ("// Generated.\n#pragma once\n\n#include <QStringList>\n\n"
            "/// Names of the operations of the host object as the fakes record them, in the order of declaration.\n"
            "const QStringList& hostOperations();\n/// The same of documents.\nconst QStringList& documentOperations();\n")
    source = '#include "tests/support/operations.h"\n\n'
    return body, source + listing("hostOperations", host) + "\n" + listing("documentOperations", document)


def main():
    folder, output = (pathlib.Path(a) for a in sys.argv[1:3])
    interfaces = read_interfaces(folder)
    host = collect(interfaces, interfaces["HostObject"][0])
    document = collect(interfaces, DOCUMENT_BASES)
    shared = {o.signature for o in document}
    camera = [o for o in collect(interfaces, [CAMERA]) if o.signature not in shared]
    output.mkdir(parents=True, exist_ok=True)
    for name, texts in {
        "FakeHost": host_files(host),
        "FakeDocument": document_files(document, camera),
        "operations": operation_files(host, document + camera),
    }.items():
        for suffix, text in zip((".h", ".cpp"), texts):
            (output / (name + suffix)).write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
