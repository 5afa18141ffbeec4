#!/usr/bin/env python3
"""The layout explorer says what the command says, in a real browser.

usage: explorer.py SOURCE_DIR BUILD_DIR [--picture FILE]   writes the picture of the README"""

import json
import os
import random
import re
import sys
import tempfile

sys.path.insert(0, os.path.join(sys.argv[1], "tests", "command"))
from browser import browser, is_installed, skip
from command import build, check, finish, golden_tables, run, source

page = os.path.join(build, "explorer.html")
chance = random.Random(15)


def velmar(*arguments, data=b""):
    code, text, errors = run(*arguments, data=data)
    check(code in (0, 1) and errors == "", f"{arguments}: {errors}")
    return text


def sample(name):
    return os.path.join(source, "samples", name)


def words_of(entry):
    return " ".join(entry[i:i + 4][::-1].hex() for i in range(0, len(entry), 4))


def hex_values(fields):
    return {name: value["hex"] for name, value in fields.items()}


def every_layout(shown, tables):
    """Random entries, pasted as bytes and as words, and changed values, for each class and chip."""
    for table in tables:
        where = f"{table.name} on {table.chip}"
        entry = chance.randbytes(table.entry_bytes)
        document = json.loads(velmar("decode", table.name, "--chip", table.chip, "--input", "raw",
                                     "--format", "json", data=entry))
        fields = document["entries"][0]["fields"]
        shown.run("location.hash = arguments[0]", f"{table.name}/{table.chip}")
        if not check(shown.wait("return document.querySelector('h1')?.textContent === arguments[0] && "
                                "document.querySelector('header p').textContent.endsWith(arguments[1])",
                                table.name, table.chip), f"{where}: not shown"):
            continue
        # Overwriting with zeros between shows that both notations are read.
        for order, text in (("bytes", entry.hex(" ")), ("words", words_of(entry))):
            shown.run("document.querySelector('.paste button').click()")
            shown.paste(text, order)
            check(shown.values() == hex_values(fields), f"{where}: values of {text} as {order}")
        check(shown.run("return [...document.querySelectorAll('[data-field]')].every((one) => "
                        "one.dataset.bits)"), f"{where}: bits")
        check(shown.run("return JSON.stringify(velmar.decode(...arguments))", table.name, table.chip,
                        list(entry)) == json.dumps(fields, separators=(",", ":")), f"{where}: decode")
        edit(shown, table, entry, where)


def edit(shown, table, entry, where):
    """Types values of fields that share no bits, and presses ports; the bytes are the command's."""
    chosen = []
    for field in chance.sample(table.fields, min(5, len(table.fields))):
        if all(field.offset >= one.offset + one.width or one.offset >= field.offset + field.width for one in chosen):
            chosen.append(field)
    values = {field.name: hex(chance.getrandbits(field.width)) for field in chosen}
    shown.paste(entry.hex(), "bytes")
    shown.run("""
        for (const [name, value] of Object.entries(arguments[0])) {
          const place = document.querySelector(`[data-field=${name}]`);
          const input = place.querySelector("input");
          if (input) {
            input.value = value;
            input.dispatchEvent(new Event("change"));
          } else {
            for (let i = 0; place.dataset.value !== value && i < 256; ++i) place.click();
          }
        }""", values)
    bytes_shown = shown.run("return document.querySelector('textarea').value").replace(" ", "")
    expected = velmar("encode", table.name, "--chip", table.chip, "--base", "-", "--input", "raw", "--index", "0",
                      "--format", "raw",
                      *(f"{name}={value}" for name, value in values.items()), data=entry)
    check(bytes_shown == expected.hex(), f"{where}: {values} in {entry.hex()}")
    check(bytes(shown.run("return Array.from(velmar.encode(...arguments))", table.name, table.chip, values,
                          list(entry))) == expected, f"{where}: encode {values}")


def refusals(shown):
    """What is out of range or no entry is refused in place, and changes nothing."""
    shown.open("#VlanEntry/BCM56990_B0?hex=" + "00" * 16 + "&order=bytes")
    for field, text, reason in (("stg", "64", "largest value is 63"), ("stg", "-1", "not a number"),
                                ("fidId", "8192", "does not fit"), ("fidId", "1 2", "not a number")):
        row = f"[data-field={field}]"
        shown.run("const input = document.querySelector(arguments[0]); input.value = arguments[1]; "
                  "input.dispatchEvent(new Event('change'))", f"{row} input", text)
        check(reason in shown.text(f"{row} [role=alert]"), f"{field}={text}: {shown.text(row)}")
        check(set(shown.values().values()) == {"0x0"}, f"{field}={text} changed the entry")
    for text, order, reason in (("00" * 15, "bytes", "15 bytes"), ("00" * 17, "bytes", "17 bytes"),
                                ("0 " * 16, "bytes", "two digits each"), ("zz", "bytes", "not a hexadecimal"),
                                ("00 " * 16, "words", "no 32-bit word"), ("1" * 31, "number", "31 digits")):
        shown.paste(text, order)
        check(reason in shown.text(".entry [role=alert]"), f"{text!r} as {order}: {shown.text('.entry')}")
        check(not any(shown.values().values()), f"{text!r} as {order}: values are shown")
    for state, reason in (("#NoTable/BCM56990_B0", "there is no table"), ("#VlanEntry/BCM00000_A0", "there is no chip"),
                          ("#Vlan2Entry/BCM56990_B0", "it exists on BCM56970_A0, BCM56980_A0"),
                          ("#VlanEntry/BCM56990_B0/vfi", "no field"),
                          ("#<img src=x onerror=alert(1)>/__proto__", "there is no table")):
        shown.open(state)
        check(reason in shown.text("[role=alert]:not(:empty)"), f"{state}: {shown.text()[:200]}")


def comparisons(shown, chips):
    """All pairs through the interface for scripts, some as they are shown."""
    for old in chips:
        for new in chips:
            listed = json.loads(velmar("compare", "--chip", old, "--chip", new, "--format", "json"))["differences"]
            check(shown.run("return velmar.compare(...arguments)", old, new) == listed, f"compare {old} {new}")
    for old, new in [chance.sample(chips, 2) for _ in range(6)]:
        shown.open(f"#compare/{old}/{new}")
        rows = shown.run("return [...document.querySelectorAll('tbody tr')].map((row) => "
                         "[...row.cells].map((cell) => cell.textContent))")
        lines = velmar("compare", "--chip", old, "--chip", new).decode().splitlines()[1:]
        listed = [re.split(r" {2,}", line.replace("  -  ", "  –  ").strip()) for line in lines]
        listed = [[cell if cell != "-" else "–" for cell in row] for row in listed]
        check(rows == listed, f"compare {old} {new} as shown: {rows[:3]}, not {listed[:3]}")


def dumps(shown, folder):
    """The notations of a dump, the filter, what is saved, and two dumps."""
    path = sample("vlan-bcm56990.bin")
    target = ("VlanEntry", "--chip", "BCM56990_B0")
    with open(path, "rb") as file:
        old = file.read()
    whole = json.loads(velmar("decode", *target, path, "--format", "json"))["entries"]
    made = {"raw": old}
    for name, arguments in {"json": ("decode", "--format", "json"), "lines": ("decode", "--format", "jsonl"),
                            "plain": ("decode", "--format", "json", "--plain")}.items():
        made[name] = velmar(arguments[0], *target, *arguments[1:], path)
    lines = [old[i:i + 16] for i in range(0, len(old), 16)]
    made["bytes"] = "\n".join(line.hex(" ") for line in lines).encode()
    made["hexdump"] = "".join(f"{16 * i:08x}  {line[:8].hex(' ')}  {line[8:].hex(' ')}  |{printable(line)}|\n"
                              for i, line in enumerate(lines)).encode() + f"{len(old):08x}\n".encode()
    made["xxd"] = "".join(f"{16 * i:08x}: {line.hex(' ', 2)}  {printable(line)}\n"
                          for i, line in enumerate(lines)).encode()
    names = {}
    for name, data in made.items():
        names[name] = os.path.join(folder, f"dump.{name}")
        with open(names[name], "wb") as file:
            file.write(data)
    for name in made:
        shown.open("#dumps/VlanEntry/BCM56990_B0?filter=valid==1 and stg==2,3")
        shown.choose_file(names[name])
        check(shown.wait("return document.querySelector('.entries')"), f"{name}: {shown.text()[:300]}")
        indexes = shown.run("return [...document.querySelectorAll('tr[data-index]')].map((row) => +row.dataset.index)")
        listed = [entry["index"] for entry in whole if entry["fields"]["valid"]["decimal"] == 1 and
                  entry["fields"]["stg"]["decimal"] in (2, 3)]
        check(indexes == listed, f"{name}: entries {indexes}, not {listed}")
        options = ("--where", "valid=1", "--where", "stg=2,3", path)
        for kind in ("json", "csv"):
            saved = shown.saved(f"Save as {kind.upper()}", f"VlanEntry-BCM56990_B0.{kind}")
            check(saved == velmar("decode", *target, "--format", kind, *options).decode(), f"{name}: saved {kind}")
    changed = bytearray(old)
    for index in (3, 20, 4095, 8191):
        changed[16 * index + chance.randrange(12)] ^= 1 << chance.randrange(8)
    now = os.path.join(folder, "changed.bin")
    with open(now, "wb") as file:
        file.write(changed)
    listed = json.loads(velmar("diff", *target, path, now, "--format", "json"))["entries"]
    check(shown.run("return velmar.diff(...arguments)", "VlanEntry", "BCM56990_B0", list(old), list(changed)) == listed,
          "diff")
    shown.open("#dumps/VlanEntry/BCM56990_B0")
    shown.choose_file(path)
    shown.wait("return document.querySelector('.entries')")
    shown.choose_file(now, side=1)
    shown.wait("return document.querySelector('td.changes')")
    seen = []
    for row in shown.run("return [...document.querySelectorAll('tr[data-index]')].map((row) => row.dataset.index)"):
        shown.one(f"tr[data-index='{row}']").click()
        seen.append((int(row), shown.run("""
            return Object.fromEntries([...document.querySelectorAll(".detail [data-old]")].map(
                (one) => [one.dataset.field, [one.dataset.old, one.dataset.value]]))""")))
    check(seen == [(entry["index"], {name: [value["old"]["hex"], value["new"]["hex"]]
                                     for name, value in entry["fields"].items()}) for entry in listed],
          f"diff as shown: {seen}")


def printable(line):
    return "".join(chr(byte) if 32 <= byte <= 126 else "." for byte in line)


def hostile(shown, folder):
    """Files that are huge, cut off or made to harm: a refusal, and nothing runs."""
    raw = sample("vlan-bcm56990.bin")
    with open(raw, "rb") as file:
        data = file.read()
    document = velmar("decode", "VlanEntry", "--chip", "BCM56990_B0", raw, "--nonzero", "--format", "json").decode()
    lines = document.splitlines()
    files = {
        "huge.bin": (b"\0" * (65 << 20), "the largest that is read"), "empty": (b"", "empty"),
        "cut.bin": (data[:-1], "whole number of entries"), "long.bin": (data + data, "16384 entries, but VlanEntry has 8192"),
        "cut.json": (document[:len(document) // 2].encode(), "no JSON"),
        "twice.json": (document.replace('"stg":{', '"stg":{"hex":"0x1"},"s\\u0074g" :{', 2).encode(), "given twice"),
        "rounded.json": (document.replace('"decimal":20}', '"decimal":20.0}').encode(), "whole number"),
        "variant.json": (document.replace('"variant":0', '"variant":1').encode(), '"variant" is'),
        "spaces.hexdump": (b"00000000  00 |.|\n00000010  0" + b" " * 60000 + b"\n", "hexdump"),
        "names.json": (b'{"' + b'\\"' * 200000, "no JSON"),
        "other.json": (document.replace('"index":20', '"index":21').encode(), "address"),
        "less.json": (re.sub(r'"stg":\{"hex[^}]*\},', "", document).encode(), "has no stg"),
        "again.json": ("\n".join([*lines[:2], *lines[1:]]).encode(), "given twice"),
        "deep.json": (b"[" * 100000, "no JSON"),
        "cut.xxd": (b"00000000: 06 00 14 00 01 02 03 04 05 06 07 08 09 0a 0b 0c\n", "must be there"),
        "pairs.xxd": (b"00000000: 0006 0014 0201 0403 0605 0807 0a09 0c0b  ................\n", "xxd -g1"),
        "words.xxd": (b"00000000: 03020100 07060504 0b0a0908 0f0e0d0c  ................\n", "over 4 digits"),
        "gap.xxd": (b"00000010: " + b"0000 " * 8 + b" " + b"." * 16 + b"\n", "is due"),
        "far.hexdump": (b"00000000  " + b"00 " * 16 + b" |" + b"." * 16 + b"|\n*\nfffffff0\n", "beyond"),
        "<img src=x onerror=document.title='run'>.bin": (b"\0", "whole number of entries"),
    }
    for name, (contents, reason) in files.items():
        path = os.path.join(folder, name)
        with open(path, "wb") as file:
            file.write(contents)
        shown.open("#dumps/VlanEntry/BCM56990_B0")
        shown.choose_file(path)
        refusal = shown.wait("return document.querySelector('[role=alert]:not(:empty)')?.textContent")
        check(refusal and reason in refusal, f"{name}: {refusal or shown.text()[:300]}")
        check(shown.run("return document.images.length + document.querySelectorAll('tr[data-index]').length") == 0,
              f"{name}: something is shown")
    check(shown.run("return document.title") != "run", "a name ran a script")
    for encoding in ("utf-16", "utf-16-le", "utf-16-be"):
        path = os.path.join(folder, encoding)
        with open(path, "w", encoding=encoding) as file:
            file.write("00 01 02 03 " * 4)
        shown.open("#dumps/VlanEntry/BCM56990_B0")
        shown.choose_file(path)
        check(shown.wait("return document.querySelector('.drop')?.textContent.includes('Choose above')"),
              f"{encoding} is not asked for: {shown.text()[:300]}")


def keyboard(shown):
    """From the search to a changed value without a mouse."""
    from selenium.webdriver.common.action_chains import ActionChains
    from selenium.webdriver.common.keys import Keys
    shown.open("#")

    def press(*keys):
        ActionChains(shown.driver).send_keys(*keys).perform()
    press("/", "vlanprofileentry ipmcv4l2 56870")
    press(Keys.ARROW_DOWN, Keys.ENTER)
    check(shown.wait("return location.hash") == "#VlanProfileEntry/BCM56870_A0/ipmcv4L2Enable",
          f"search: {shown.run('return location.hash')}")
    shown.one("[data-field=ipmcv4L2Enable]").send_keys(Keys.ARROW_UP)
    row = shown.run("return document.activeElement.dataset.field")
    check(row and row != "ipmcv4L2Enable", f"arrow in the table: {row}")
    check(shown.run("return document.querySelectorAll('svg .selected').length") > 0, "the drawing follows")
    press(Keys.TAB, "1", Keys.ENTER)
    check(shown.values()[row] == "0x1", f"{row} typed: {shown.values()}")


def links(shown):
    """A link shows what the page showed."""
    shown.open("#EgrVlanEntry/BCM56980_A0")
    shown.paste("00" * 52)
    shown.run("""const input = document.querySelector("[data-field=portBitmap] input");
        input.value = "0-3,159"; input.dispatchEvent(new Event("change"));
        document.querySelector("[data-field=stg]").click()""")
    link = shown.wait("return location.hash.includes('0f0000') && location.hash.includes('/stg') && location.hash")
    before = (shown.values(), shown.text(".bytes"))
    shown.open(link or "#")
    check((shown.values(), shown.text(".bytes")) == before and "/stg" in link, f"link {link}")
    check(shown.run("return document.querySelector('tr.selected')?.dataset.field") == "stg", "selected field")


def speed(shown, tables):
    """What makes the page feel at once: 100 ms for a view, 50 for a letter, 150 for a dump. The figures
    are printed; a machine that does other work meanwhile gets three times as much."""
    views = shown.run("""return arguments[0].map((state) => {
        const start = performance.now();
        location.hash = state;
        dispatchEvent(new Event("hashchange"));
        document.body.offsetHeight;
        return performance.now() - start;
    })""", [f"{table.name}/{table.chip}" for table in tables])
    keys = shown.run("""const search = document.querySelector("#search");
        return ["vlan", "spTreePort", "0x0c7c0064", "spanning tree state of the port", "e"].flatMap((query) =>
          [...query].map((_, i) => {
            const start = performance.now();
            search.value = query.slice(0, i + 1);
            search.dispatchEvent(new Event("input"));
            document.body.offsetHeight;
            return performance.now() - start;
          }))""")
    shown.open("#dumps/VlanEntry/BCM56990_B0")
    shown.run("""new MutationObserver(() => {
          if (document.querySelector("tr[data-index]")) window.shownAfter ??= performance.now() - window.startedAt;
        }).observe(document.body, {childList: true, subtree: true});
        document.querySelector("input[type=file]").addEventListener("change", () => { window.startedAt = performance.now(); },
          true);""")
    shown.choose_file(sample("vlan-bcm56990.bin"))
    dump = shown.wait("return window.shownAfter") or 1e9
    load = shown.run("return performance.getEntriesByType('navigation')[0].domComplete")
    print(f"load {load:.0f} ms; first view of a table at most {max(views):.0f} ms; "
          f"a letter in the search at most {max(keys):.0f} ms; 8192 entries {dump:.0f} ms")
    for what, time, limit in (("view", max(views), 100), ("letter", max(keys), 50), ("dump", dump, 150)):
        check(time < 3 * limit, f"{what}: {time:.0f} ms")


def picture(shown, path):
    with open(sample("vlan-bcm56990.bin"), "rb") as file:
        entry = file.read()[16 * 20:16 * 21]
    shown.open(f"#VlanEntry/BCM56990_B0/stg?hex={entry.hex()}&order=bytes&index=20")
    shown.run("scrollTo(0, 0)")
    shown.driver.save_screenshot(path)


if not is_installed():
    skip()
with browser(page) as explorer, tempfile.TemporaryDirectory() as files:
    if "--picture" in sys.argv:
        picture(explorer, sys.argv[-1])
        sys.exit(0)
    layouts = list(golden_tables())
    every_layout(explorer, layouts)
    refusals(explorer)
    comparisons(explorer, sorted({table.chip for table in layouts}))
    dumps(explorer, files)
    hostile(explorer, files)
    keyboard(explorer)
    links(explorer)
    speed(explorer, layouts)
    check(explorer.errors() == [], f"console and requests: {explorer.errors()}")
check(os.path.getsize(page) <= 300_000, f"the page has {os.path.getsize(page)} bytes")
finish()
