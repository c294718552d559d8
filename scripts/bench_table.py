# bench_table.py FILE...: prints the results of Google Benchmark as a table, with the ratio of ours to others' work.
import json
import sys

MICROSECONDS = {"ns": 1e-3, "us": 1, "ms": 1e3, "s": 1e6}


def read(path):
    """The medians in microseconds, by name without what tells how they were measured."""
    with open(path) as file:
        results = json.load(file)["benchmarks"]
    times = {}
    for result in results:
        if result.get("aggregate_name") != "median":
            continue
        whole = result["run_name"].endswith("/real_time")
        name = result["run_name"].removesuffix("/real_time")
        times[name] = result["real_time" if whole else "cpu_time"] * MICROSECONDS[result["time_unit"]]
    return times


def peer_of(name, times):
    """The name of the others' work that stands beside ours."""
    parts = name.split("/")
    at = parts.index("ours")
    for other in times:
        theirs = other.split("/", at)
        rest = other.split("/")[-(len(parts) - at - 1):] if len(parts) > at + 1 else []
        if other != name and theirs[:at] == parts[:at] and rest == parts[at + 1:]:
            return other
    return None


times = {}
for path in sys.argv[1:]:
    times |= read(path)
print(f"{'':32} {'ours':>14} {'theirs':>14} {'ratio':>8}")
for name, time in times.items():
    if "ours" not in name.split("/"):
        continue
    peer = peer_of(name, times)
    print(f"{name.replace('/ours', ''):32} {time:11.1f} us {times[peer]:11.1f} us {time / times[peer]:8.3f}  {peer}")
for name, time in times.items():
    if name.split("/")[0] in ("Month", "Day", "NationalMonth"):
        print(f"{name:32} {time:11.1f} us")
