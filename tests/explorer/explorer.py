#!/usr/bin/env python3
"""The layout explorer says what the command says, in a real browser.

usage: explorer.py SOURCE_DIR BUILD_DIR [--picture FILE]   writes the picture of the README"""

import base64
import json
import os
import random
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.join(sys.argv[1], "tests", "command"))
from browser import browser, is_installed, skip
from command import build, check, finish, golden_tables, run, source
from notations import dumps as dumps_of, notations, targets

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
    """A random entry of each class and chip, as the command decodes it, and changed values."""
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
        order = chance.choice(("bytes", "words"))
        shown.paste(entry.hex(" ") if order == "bytes" else words_of(entry), order)
        check(shown.values() == hex_values(fields), f"{where}: values of {entry.hex()} as {order}")
        check(shown.run("return JSON.stringify(velmar.decode(...arguments))", table.name, table.chip,
                        list(entry)) == json.dumps(fields, separators=(",", ":")), f"{where}: decode")
        edit(shown, table, entry, where)


def edit(shown, table, entry, where):
    """Types values, and presses ports; the bytes are those of encode(), which the package's test checks."""
    values = {}
    for field in chance.sample(table.fields, min(3, len(table.fields))):
        value = hex(chance.getrandbits(field.width))
        entry = bytes(shown.run("return Array.from(velmar.encode(...arguments))", table.name, table.chip,
                                {field.name: value}, list(entry)))
        values[field.name] = value
    shown.run("""
        for (const [name, value] of arguments[0]) {
          const place = document.querySelector(`[data-field=${name}]`);
          const input = place.querySelector("input");
          if (input) {
            input.value = value;
            input.dispatchEvent(new Event("change"));
          } else {
            for (let i = 0; place.dataset.value !== value && i < 256; ++i) place.click();
          }
        }""", list(values.items()))
    seen = shown.run("return [...document.querySelectorAll('[data-byte]')].map((one) => one.textContent).join('')")
    check(seen == entry.hex(), f"{where}: {values} gives {seen}")


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
                                ("zz", "bytes", "no entry"), ("00 " * 16, "words", "2 digits are bytes"),
                                ("\n".join(["00 " * 16] * 2), "bytes", "2 entries"), ("1" * 33, "number", "does not fit")):
        shown.paste(text, order)
        check(reason in shown.text(".entry [role=alert]"), f"{text!r} as {order}: {shown.text('.entry [role=alert]')}")
        check(not any(shown.values().values()), f"{text!r} as {order}: values are shown")
    # Digits that may be bytes or words are asked about.
    shown.open("#VlanEntry/BCM56990_B0")
    shown.paste("0011 2233 4455 6677 8899 aabb ccdd eeff", None)
    shown.one(".entry [data-remedy=hexOrder][value=words]").click()
    check(shown.run("return document.querySelector('[data-byte]').textContent") == "11", f"words: {shown.text('.entry')}")
    for state, reason in (("#NoTable/BCM56990_B0", "there is no table"), ("#VlanEntry/BCM00000_A0", "there is no chip"),
                          ("#Vlan2Entry/BCM56990_B0", "it exists on BCM56970_A0, BCM56980_A0"),
                          ("#VlanEntry/BCM56990_B0/vfi", "no field"),
                          ("#<img src=x onerror=alert(1)>/__proto__", "there is no table")):
        shown.open(state)
        check(reason in shown.text("[role=alert]:not(:empty)"), f"{state}: {shown.text()[:200]}")


def comparisons(shown, chips):
    """Some pairs as they are shown; the package's test has all."""
    for old, new in [chance.sample(chips, 2) for _ in range(6)]:
        shown.open(f"#compare/{old}/{new}")
        rows = shown.run("return [...document.querySelectorAll('tbody tr')].map((row) => "
                         "[...row.cells].map((cell) => cell.textContent))")
        lines = velmar("compare", "--chip", old, "--chip", new).decode().splitlines()[1:]
        listed = [re.split(r" {2,}", line.strip()) for line in lines]
        check(rows == listed, f"compare {old} {new} as shown: {rows[:3]}, not {listed[:3]}")


def opened(shown, name, contents, table=None, chip=None):
    """Opens a file as a script does; what the page says if it refuses."""
    return shown.driver.execute_async_script("""
        const [name, text, table, chip, done] = arguments;
        const bytes = Uint8Array.from(atob(text), (one) => one.charCodeAt(0));
        velmar.open([{name, bytes}], {table, chip}).then(() => done(""), (error) => done(error.message));
        """, name, base64.b64encode(contents).decode(), table, chip)


def grid(shown):
    return shown.run("return [...document.querySelectorAll('tr[data-index]')].map((row) => +row.dataset.index)")


def every_notation(shown):
    """A dump of each notation is read as the command reads it, or has its remedies as buttons, which work."""
    table = next(one for one in targets if (one.name, one.chip) == ("VlanEntry", "BCM56990_B0"))
    target = (table.name, "--chip", table.chip)
    shown.open("#")
    for name, (_, notation) in notations.items():
        text = notation(dumps_of(table.entry_bytes)["random"], table)
        if text is None:
            continue
        code, result, errors = run("decode", *target, "-f", "json", "-", data=text)
        problem = opened(shown, name, text, table.name, table.chip)
        if code == 0:
            indexes = [entry["index"] for entry in json.loads(result)["entries"]]
            check(problem == "" and grid(shown) == indexes, f"{name}: {problem} {grid(shown)}")
            continue
        fault = json.loads(errors)
        choices = [(remedy["option"], choice) for remedy in fault["remedies"] for choice in remedy["choices"]]
        buttons = shown.run("return [...document.querySelectorAll('[data-remedy]')].map((one) => one.value)")
        check(problem != "" and buttons == [choice for _, choice in choices], f"{name}: {problem}, {buttons}")
        for option, choice in choices[:1]:
            code, result, _ = run("decode", *target, "-f", "json", option, choice, "-", data=text)
            shown.run("document.querySelector('[data-remedy]').click()")
            indexes = [entry["index"] for entry in json.loads(result)["entries"]] if code == 0 else []
            check(grid(shown) == indexes, f"{name}, {option} {choice}: {grid(shown)}, not {indexes}")
        check("--" not in problem.replace(name, ""), f"{name}: {problem} speaks of the command")


def without_a_table(shown):
    """A dump that one table fits is shown; several are asked about, in the order of the command."""
    with open(sample("vlan-bcm56990.bin"), "rb") as file:
        data = file.read()
    for contents in (data, data[:48]):
        fits = json.loads(velmar("identify", "-f", "json", "--input", "raw", "-", data=contents))["fits"]
        shown.open("#dumps")
        problem = opened(shown, "dump.bin", contents)
        if len(fits) == 1:
            check(problem == "" and len(grid(shown)) > 0, f"one fit: {problem}")
            continue
        seen = shown.run("return [...document.querySelectorAll('.fits button')].map((one) => one.dataset.table)")
        check(seen == [fit["table"] for fit in fits], f"fits {seen}")
        shown.run("document.querySelector('.fits button').click()")
        check(shown.wait("return document.querySelector('tr[data-index]') !== null"), "a fit is not shown")


def dumps(shown, folder):
    """The notations of a dump, the filter, what is saved, and two dumps."""
    path = sample("vlan-bcm56990.bin")
    target = ("VlanEntry", "--chip", "BCM56990_B0")
    with open(path, "rb") as file:
        old = file.read()
    whole = json.loads(velmar("decode", *target, path, "--format", "json"))["entries"]
    shown.open("#dumps/VlanEntry/BCM56990_B0?filter=valid==1 and stg==2,3")
    shown.choose_file(path)
    check(shown.wait("return document.querySelector('.entries')"), f"not shown: {shown.text()[:300]}")
    listed = [entry["index"] for entry in whole if entry["fields"]["valid"]["decimal"] == 1 and
              entry["fields"]["stg"]["decimal"] in (2, 3)]
    check(grid(shown) == listed, f"entries {grid(shown)}, not {listed}")
    for kind in ("json", "csv"):
        saved = shown.saved(f"Save as {kind.upper()}", f"VlanEntry-BCM56990_B0.{kind}")
        expected = velmar("decode", *target, "--format", kind, "--where", "valid=1 and stg=2,3", path).decode()
        check(saved == expected, f"saved {kind}")
    # Text from the clipboard is a dump, too.
    lines = "\n".join(f"{i}: {old[16 * i:][:16].hex(' ')}" for i in (7, 20))
    shown.open("#dumps/VlanEntry/BCM56990_B0")
    shown.run("""const data = new DataTransfer();
        data.setData("text/plain", arguments[0]);
        document.querySelector(".dump-view").dispatchEvent(new ClipboardEvent("paste", {clipboardData: data, bubbles: true}));
        """, lines)
    check(grid(shown) == [7, 20], f"pasted: {grid(shown)}")
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


def hostile(shown, folder):
    """Files that are huge, cut off or made to harm: a refusal, and nothing runs."""
    raw = sample("vlan-bcm56990.bin")
    with open(raw, "rb") as file:
        data = file.read()
    document = velmar("decode", "VlanEntry", "--chip", "BCM56990_B0", raw, "--nonzero", "--format", "json").decode()
    files = {
        "huge.bin": (b"\0" * (65 << 20), "64 MiB"), "empty": (b"", "at least one entry"),
        "cut.bin": (data[:-1], "not a multiple"), "long.bin": (data + data, "16384 entries"),
        "cut.json": (document[:len(document) // 2].encode(), "JSON ends too early"),
        "spaces.hexdump": (b"00000000  00 |.|\n00000010  0" + b" " * 60000 + b"\n", ""),
        "names.json": (b'{"' + b'\\"' * 200000, "JSON ends too early"),
        "deep.json": (b"[" * 100000, "JSON"),
        "<img src=x onerror=document.title='run'>.bin": (b"\0", "not a multiple"),
        "markup.txt": (b"<img src=x onerror=document.title='run'>", "no entry"),
        "utf-16": ("00 01 02 03 ".encode("utf-16") * 4, ""),
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


# What browsers are slow at, so that a busy machine is slow at it, too.
LOOP = """const start = performance.now();
    for (let round = 0; round < 3; ++round) {
      const list = document.body.appendChild(document.createElement("div"));
      for (let i = 0; i < 2000; ++i) list.append(Object.assign(document.createElement("p"), {textContent: i}));
      document.body.offsetHeight;
      list.remove();
    }
    return performance.now() - start"""


def speed(shown, tables):
    """What makes the page feel at once. The limits are multiples of a loop that is timed beside each."""
    views = shown.run("""return arguments[0].map((state) => {
        const start = performance.now();
        location.hash = state;
        dispatchEvent(new Event("hashchange"));
        document.body.offsetHeight;
        return performance.now() - start;
    })""", [f"{table.name}/{table.chip}" for table in tables])
    loops = [min(shown.run(LOOP) for _ in range(3))]
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
    loops.append(min(shown.run(LOOP) for _ in range(3)))
    with open(sample("vlan-bcm56990.bin"), "rb") as file:
        text = subprocess.run(["xxd", "-g1"], input=file.read(), stdout=subprocess.PIPE, check=True).stdout.decode()
    dump = min(shown.driver.execute_async_script("""
        const bytes = new TextEncoder().encode(arguments[0]);
        const start = performance.now();
        velmar.open([{name: "d", bytes}], {table: "VlanEntry", chip: "BCM56990_B0"}).then(() => {
          document.body.offsetHeight;
          arguments[1](performance.now() - start);
        });""", text) for _ in range(3))
    loop = max(loops)
    times = {"view": sorted(views)[len(views) // 2], "letter": sorted(keys)[len(keys) // 2], "dump": dump}
    print(f"loop {loop:.0f} ms; " + "; ".join(f"{name} {time:.0f} ms" for name, time in times.items()))
    for name, most in (("view", 3), ("letter", 3), ("dump", 10)):
        check(times[name] < most * loop, f"{name}: {times[name]:.0f} ms, a loop takes {loop:.0f}")


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
    every_notation(explorer)
    without_a_table(explorer)
    hostile(explorer, files)
    keyboard(explorer)
    links(explorer)
    speed(explorer, layouts)
    check(explorer.errors() == [], f"console and requests: {explorer.errors()}")
check(os.path.getsize(page) <= 400_000, f"the page has {os.path.getsize(page)} bytes")
finish()
