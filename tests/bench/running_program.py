"""The real program under measurement: its profile, its start and end, what it costs."""
import os
import pathlib
import sqlite3
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
ADDRESS, PORT = "127.0.44.1", 45490


def write_profile(folder, addresses):
    """A store with these contacts, and with nothing that would open a window of its own."""
    rows = [("Settings", "UDPPort", str(PORT)), ("Options", "TipOTDay", "0"), ("Settings", "MyNickName", "Bench")]
    for n, address in enumerate(addresses, 1):
        rows += [("Users", f"IP{n}", address), ("Users", f"Nn{n}", f"Contact {n}"), ("Users", f"Ws{n}", "PC")]
    rows.append(("Users", f"IP{len(addresses) + 1}", "255.255.255.255"))
    os.makedirs(folder)
    with sqlite3.connect(f"{folder}/settings.sqlite3") as store:
        store.execute("CREATE TABLE settings(section TEXT, key TEXT, value TEXT, PRIMARY KEY(section, key))")
        store.executemany("INSERT INTO settings VALUES(?, ?, ?)", rows)


def start(program, folder, *words):
    environment = dict(os.environ, NIMBCHAT_ADDRESS=ADDRESS, NIMBCHAT_HOSTNAME="BENCH", NIMBCHAT_PROFILE=folder)
    return subprocess.Popen([program, *words], env=environment, stderr=subprocess.DEVNULL)


def end(process):
    process.terminate()
    process.wait(30)


def memory(process, field):
    """A field of the kernel's summary of its memory, in MiB."""
    for line in pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text().splitlines():
        if line.startswith(field + ":"):
            return int(line.split()[1]) / 1024
    raise SystemExit(f"no {field}")


def cpu_seconds(process):
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def switches(process):
    """How often it was put on or taken off a processor; a rest that nothing disturbs adds none."""
    text = pathlib.Path(f"/proc/{process.pid}/status").read_text()
    return sum(int(line.split()[1]) for line in text.splitlines() if "ctxt_switches" in line)
