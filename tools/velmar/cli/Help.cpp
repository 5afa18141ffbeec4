#include "cli/Help.h"

#include <algorithm>

#include "output/Wrapping.h"

namespace Tool {
namespace {

constexpr size_t headingWidth = 26;

/// A command in lines that a shell takes as one: broken at blanks outside quotes, after a backslash.
std::string exampleLines(std::string_view example, size_t lineWidth) {
  std::string lines, line = " ";
  while (!example.empty()) {
    bool isQuoted = false;
    size_t size = 0;
    for (; size < example.size() && (isQuoted || example[size] != ' '); ++size) {
      if (example[size] == '\'') isQuoted = !isQuoted;
    }
    const bool isLast = size == example.size();
    if (line.size() + 1 + size + (isLast ? 0 : 2) > lineWidth && line.size() > 4) {
      lines += line + " \\\n";
      line = "   ";
    }
    line += ' ';
    line += example.substr(0, size);
    example.remove_prefix(size + (isLast ? 0 : 1));
  }
  return lines + line + '\n';
}

/// A text in lines; those after the first are indented.
std::string paragraph(const std::string& text, size_t lineWidth, size_t indent = 0) {
  std::string lines;
  for (const std::string& line : wrap(text, lineWidth - std::min(indent, lineWidth - 1))) {
    if (!lines.empty()) lines.append(indent, ' ');
    lines += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
  }
  return lines;
}

/// A heading with its meaning beside it.
std::string item(const std::string& heading, const std::string& meaning, size_t width,
                 size_t lineWidth) {
  std::string text = "  " + heading;
  // A long heading has a line of its own.
  const bool fits = text.size() + 2 <= width;
  text += fits ? std::string(width - text.size(), ' ') : '\n' + std::string(width, ' ');
  return text + paragraph(meaning, lineWidth, width);
}

}  // namespace

const char* const purposeText =
    "Decodes, encodes, compares and explains the VLAN-related memories and registers of Ethernet "
    "switch chips, offline, from saved dumps.";
const char* const exitCodeText =
    "Exit code: 0 success, or no difference; 1 a difference or a finding; 2 wrong usage, bad input "
    "or a file that cannot be read or written.";

const std::vector<Notation> notations = {
    {"raw", "binary, little-endian, entries one after another"},
    {"bytes",
     "hex text, an entry on each line, in groups of two digits, the first byte first; blanks, "
     "commas, "
     "semicolons, colons, brackets and \\x may stand between them"},
    {"words",
     "hex text, an entry on each line, in groups of eight digits, the first word first; without "
     "zeros "
     "before them if a line has the words of an entry"},
    {"0x", "may stand before each group of hex text"},
    {"index:", "before an entry of hex text, such as 100: or 0x64:, gives its index"},
    {"#", "begins a comment in hex text; blank lines are skipped"},
    {"other groups",
     "give --hex-order, which says what the digits are; without it they are refused"},
    {"one line, one value",
     "one word on each line, or after 0x all digits of an entry, the highest first; lines without "
     "blanks that are no entries are read as a stream if they have the 60 digits of xxd -p"},
    {"xxd, hexdump -C, od -t x1",
     "their output, with offsets that must follow one another; what may be bytes or words, as of "
     "xxd "
     "-e, hexdump or od -t x4, needs --hex-order, and words of the other byte order need "
     "--byte-order big"},
    {"other lines",
     "before and after the data, such as a prompt, are skipped, and a note counts them"},
    {"addresses",
     "before the data, as debuggers and boot loaders print them, with --origin; an offset such as "
     "<table+16> needs none"},
    {"logs", "time stamps, levels and names of processes before each line of data are skipped"},
    {"JSON", "what decode prints with --format json or jsonl"},
    {"CSV", "what decode prints with --format csv, also from a spreadsheet"},
    {"snapshot",
     "a folder with snapshot.json, which names its chip and its dumps, as velmar snapshot writes "
     "it. "
     "Its dumps are files in the folder; links are not followed"},
};

const std::vector<Notation> conditions = {
    {"FIELD=VALUE",
     "or one of == != < <= > >=. = and != take a list with ranges, such as stg=2-5,9 or stg=5-: "
     "any "
     "of these numbers, or none of them. Names are as forgiving as elsewhere; index is a field "
     "too"},
    {"BITMAP~PORTS", "it has these ports, !~: none of them, = exactly these, != others"},
    {"any, all",
     "before the name of a family: 'any spTreePort=2'. Numbered fields such as spTreePort0-3 and "
     "names with * without it: all of them"},
    {"nonzero", "a bit is set"},
    {"reserved", "a bit outside all fields is set"},
    {"changed FIELD",
     "in trace alone: the transaction changed the field, or one of those that the name stands for"},
    {"not, and, or",
     "join conditions, in any case; not binds first, then and, then or. Parentheses group"},
    {";", "is an and that binds last; each --where is a group of its own, and all must hold"},
};

const std::vector<Notation> logs = {
    {"[TIME] W ADDRESS WORD...",
     "or R, write, read, in any case. The address and the words may have addr=, data=, len=, "
     "access= "
     "and block= before them, =, :, <- or -> between them, and brackets or braces around them; all "
     "lines have the same signs. Further words may stand on lines that begin with blanks"},
    {"regmap_reg_write, regmap_reg_read", "of ftrace, with reg= and val="},
    {"rwmmio_write, rwmmio_read",
     "of ftrace, also _post_, with width=32. A write and its _post_ line are one transaction, and "
     "so are "
     "a read without its value and the one with it"},
    {"W 4 TIME MAP ADDRESS VALUE PC PROCESS", "of mmiotrace, or R"},
    {"memory_region_ops_write", "or _read, of an emulator, with addr, value and size 4"},
    {"CSV",
     "with a header: time, op, address, data; also several columns of data, len, access, block"},
    {"JSON", "an object on each line, with such members"},
    {"--line", "any other shape, as the option says it"},
    {"numbers",
     "hexadecimal, but for numbers of JSON, and len, access and block without 0x. If words or "
     "addresses "
     "have zeros before them, a line with fewer digits is no transaction"},
    {"words",
     "an address is that of a whole entry. Lines of ftrace, mmiotrace and emulators have one word "
     "of 32 "
     "bits each; --words-apart joins them to entries"},
    {"TIME",
     "seconds, hours:minutes:seconds, or a date and these. --from and --until compare times of "
     "one form"},
};

const std::vector<Notation> findings = {
    {"no-table", "no table has the address; nearest names the entry that is nearest"},
    {"too-short, too-long",
     "the words are not as many as the entry has; then it is not known any more"},
    {"unchanged", "a write of what was there"},
    {"reserved-bits", "bits outside all fields are set"},
    {"read-differs", "a read of what was not there before"},
    {"access-code", "another access code or block than the table has"},
    {"shared-address", "two tables have the address; others names the one that is not shown"},
};

const std::vector<Notation> sql = {
    {"tables",
     "the classes of the dumps, with or without Entry or Control, in any case. A row is an "
     "entry "
     "that "
     "a dump has. \"pragma table_info(vlan)\" lists the columns of a table"},
    {"\"index\"", "of the entry; in double quotes, because it is a word of SQL"},
    {"identifier, address", "of the entry, as numbers; hex(address) is text"},
    {"nonzero, reserved", "1 if a bit, or a bit outside all fields, is set; otherwise 0"},
    {"fields",
     "under their names, as numbers; those of more than 63 bits as hexadecimal text, bitmaps "
     "as "
     "text "
     "such as 0-3,17; NULL where the chip does not have the field"},
    {"families",
     "such as spTreePort, as text: \"3: 1-9,11  0: 12-159\", each value with the numbers of "
     "its "
     "fields"},
    {"NAME_blob",
     "hidden: a bitmap or family as bytes with a bit for each port, the lowest first; of a "
     "family "
     "those that are not zero"},
    {"{name}",
     "in the path of --data stands for one or more characters of a name, and is a column of "
     "text"},
    {"has_port(bitmap, N)", "1 if the bitmap or family, as text or bytes, has port N; otherwise 0"},
    {"port_count(bitmap)", "the number of its ports"},
    {"ports(bitmap)", "a table with a row for each port: select port from vlan, ports(portBitmap)"},
    {"hex(N)", "a number as hexadecimal text after 0x"},
    {"load_extension",
     "where SQLite itself runs, \"select load_extension('velmar')\" and \"select "
     "velmar_data('lab/')\", or velmar_data('vlan=vlan.bin', '56990'), make the same tables "
     "there"},
};

const std::vector<Notation> outputs = {
    {"table",
     "for people. On a terminal it fits the width: columns that do not fit fall below their row. "
     "Fields of all ports share a line, such as \"3: 1-9,11  0: 12-159\": each value with the "
     "numbers of its fields. --expand shows them one by one"},
    {"json",
     "one document that begins with its format and version. Its schema is among the FILES. The "
     "version changes only when a reader has to. A refusal is JSON too, on standard error, also "
     "with jsonl: code, text, place and remedies"},
    {"jsonl", "a JSON document on each line, one for each row or entry"},
    {"csv",
     "a header, then a row for each entry; numbers up to 53 bits in decimal, wider ones in "
     "hexadecimal, bitmaps as ranges of ports. The last column of decode, outsideFields, has the "
     "bits that are set outside all fields"},
    {"hex, words, raw", "the bytes of entries, as decode reads them"},
};

const std::vector<Notation> environment = {
    {"NO_COLOR", "if it is not empty, there are no colours on a terminal"},
    {"TERM", "if it is \"dumb\", there are none either"},
};

const std::vector<Notation> files = {
    {"share/doc/velmar/docs/recipes.md", "questions and edits that take more than one command"},
    {"share/doc/velmar/samples/", "the dumps and the log that the examples name"},
    {"share/doc/velmar/docs/schema/", "a JSON Schema for each JSON document"},
};

std::string headingOf(const OptionText& option) {
  std::string heading = join(split(option.names, ','), ", ");
  if (option.value != nullptr) heading += formatText(" {}", option.value);
  return heading;
}

std::string meaningOf(const OptionText& option) {
  std::string meaning = option.meaning;
  if (option.choices[0] != '\0') {
    meaning += "; one of " + join(split(option.choices, ','), ", ");
  }
  return meaning;
}

std::string usageOf(const Verb& verb) {
  std::string usage = formatText("velmar {}", verb.name);
  std::string last;
  for (const Positional& positional : verb.positionals) {
    const std::string name = positional.required ? positional.value
                             : positional.proposal == Proposal::assignments
                                 ? formatText("[{}...]", positional.value)
                                 : formatText("[{}]", positional.value);
    (positional.proposal == Proposal::tables ? usage : last) += " " + name;
  }
  for (const Option& option : verb.options) {
    if (option.required) usage += formatText(" {} {}", option.longName(), option.value);
    if (option.isKnownBySnapshot) usage += formatText(" [{} {}]", option.longName(), option.value);
  }
  return usage + " [OPTION...]" + last;
}

std::string overview(const VerbList& verbs, size_t lineWidth) {
  std::string text =
      "Usage: velmar VERB [ARGUMENT...]\n\n" + paragraph(purposeText, lineWidth) + "\nVerbs:\n";
  for (const VerbName& name : verbs) text += item(name.name, name.make().summary, 13, lineWidth);
  text += "\n" + paragraph(
                     "\"velmar VERB --help\" explains a verb; \"velmar --version\" prints the "
                     "version.",
                     lineWidth);
  text += paragraph(
      "Names are forgiving: VlanEntry, vlan and VLAN are one table; BCM56990_B0, 56990 and 33 one "
      "chip; fidId, FID_ID and 90 one field.",
      lineWidth);
  return text + paragraph(exitCodeText, lineWidth);
}

std::string helpOf(const Verb& verb, size_t lineWidth) {
  std::string text =
      paragraph("Usage: " + usageOf(verb), lineWidth) + "\n" + paragraph(verb.summary, lineWidth);
  if (verb.details[0] != '\0') text += "\n" + paragraph(verb.details, lineWidth);
  if (!verb.positionals.empty()) text += "\nArguments:\n";
  for (const Positional& positional : verb.positionals) {
    text += item(positional.value, positional.meaning, headingWidth, lineWidth);
  }
  text += "\nOptions:\n";
  for (const Option& option : verb.options) {
    text += item(headingOf(option), meaningOf(option), headingWidth, lineWidth);
  }
  text += item(headingOf(Options::help), meaningOf(Options::help), headingWidth, lineWidth);
  text += "\n" + paragraph(exitCodeText, lineWidth) + "\nExamples:\n";
  for (const char* example : verb.examples) text += exampleLines(example, lineWidth);
  return text;
}

}  // namespace Tool
