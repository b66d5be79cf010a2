#!/usr/bin/env python3
"""Runs the benchmark program and prints one table: for every case, the tpx export's time,
its peer's time, the ratio tpx/peer (below 1.0 is faster), and the share of this machine's
bandwidth it reaches for the same bytes and pattern. Times are CPU times, medians of
repetitions that Google Benchmark interleaves at random in one process.

usage: report.py BENCH_BINARY [FILTER_REGEX] [REPETITIONS] [--json OUT]
"""
import json
import os
import statistics
import subprocess
import sys
import tempfile
from collections import defaultdict

KINDS = {1: "copy", 2: "read", 3: "r2w1"}


def run(binary, regex, reps):
    with tempfile.NamedTemporaryFile(suffix=".json", delete=False) as f:
        out = f.name
    # Baselines always run beside the cases they serve.
    filt = f"({regex})|^BW/"
    cmd = [binary, f"--benchmark_filter={filt}", f"--benchmark_repetitions={reps}",
           "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.05",
           f"--benchmark_out={out}", "--benchmark_out_format=json",
           "--benchmark_format=console", "--benchmark_report_aggregates_only=true"]
    subprocess.run(cmd, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    with open(out) as f:
        data = json.load(f)
    os.unlink(out)
    return data


def main():
    args = [a for a in sys.argv[1:]]
    json_out = None
    if "--json" in args:
        i = args.index("--json")
        json_out = args[i + 1]
        del args[i:i + 2]
    binary = args[0]
    regex = args[1] if len(args) > 1 else "."
    reps = int(args[2]) if len(args) > 2 else 5
    data = run(binary, regex, reps)

    times = defaultdict(list)
    counters = {}
    for b in data["benchmarks"]:
        if b.get("run_type") != "aggregate" or b.get("aggregate_name") != "median":
            continue
        name = b["run_name"]
        times[name].append(b["cpu_time"])  # microseconds, median of the repetitions
        counters[name] = b
    med = {k: statistics.median(v) for k, v in times.items()}

    cases = defaultdict(dict)
    for name, t in med.items():
        if name.startswith("BW/"):
            continue
        base, who = name.rsplit("/", 1)
        cases[base][who] = (t, counters[name])

    rows = []
    print(f"{'case':<52} {'tpx us':>10} {'peer us':>10} {'tpx/peer':>9} {'% of bw':>8}")
    for base in sorted(cases):
        c = cases[base]
        if "tpx" not in c:
            continue
        t, ctr = c["tpx"]
        peer = next((v for k, v in c.items() if k != "tpx"), None)
        ratio = t / peer[0] if peer else None
        bw = int(ctr.get("bw", 0))
        pct = None
        if bw:
            key = f"BW/{KINDS[bw]}/{int(ctr.get('stream_bytes', 0))}"
            if key in med:
                pct = 100.0 * med[key] / t
        rows.append({"case": base, "tpx_us": t, "peer_us": peer[0] if peer else None,
                     "ratio": ratio, "pct_bw": pct})
        print(f"{base:<52} {t:>10.1f} {peer[0] if peer else float('nan'):>10.1f} "
              f"{ratio if ratio is not None else float('nan'):>9.3f} "
              f"{pct if pct is not None else float('nan'):>7.0f}%")
    print()
    print(f"{'bandwidth baseline':<52} {'us':>10} {'GB/s':>10}")
    for name in sorted(k for k in med if k.startswith("BW/")):
        kind, nbytes = name.split("/")[1], int(name.split("/")[2])
        streams = {"copy": 2, "read": 1, "r2w1": 3}[kind]
        gbs = streams * nbytes / (med[name] * 1e-6) / 1e9
        print(f"{name:<52} {med[name]:>10.1f} {gbs:>10.2f}")
    if json_out:
        with open(json_out, "w") as f:
            json.dump(rows, f, indent=1)


if __name__ == "__main__":
    main()
