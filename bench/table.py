"""Turns a Google Benchmark JSON file into the markdown table of bench/report.sh.

Benchmarks are named <Operation>/<impl>/<size>; rows pair tavs with every
other impl of the same operation and size."""
import json
import math
import sys
from collections import defaultdict

TRANSFORMS = ("FFT", "DFT", "DCT")


def main(path):
    data = json.load(open(path))
    ctx = data.get("context", {})
    times = defaultdict(dict)  # (op, size) -> impl -> ns
    for b in data["benchmarks"]:
        if b.get("run_type") == "aggregate":
            continue
        parts = b["name"].split("/")
        if len(parts) < 3:
            continue
        op, impl, size = parts[0], parts[1], parts[2]
        unit = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[b.get("time_unit", "ns")]
        times[(op, size)][impl] = b["real_time"] * unit
    print(f"Machine: {ctx.get('num_cpus', '?')} cpus at {ctx.get('mhz_per_cpu', '?')} MHz, "
          f"{ctx.get('host_name', '')}, {ctx.get('date', '')}\n")
    print("| operation | size | tavs | peer | peer time | tavs / peer | tavs mflops |")
    print("|---|---:|---:|---|---:|---:|---:|")
    for (op, size), impls in sorted(times.items(), key=lambda kv: (kv[0][0], int(kv[0][1]))):
        if "tavs" not in impls:
            continue
        t = impls["tavs"]
        mflops = ""
        if op.startswith(TRANSFORMS):
            n = 1 << int(size) if int(size) < 32 else int(size)
            mflops = f"{5 * n * math.log2(max(n, 2)) / (t / 1e3):.0f}"
        others = [(k, v) for k, v in sorted(impls.items()) if k != "tavs"] or [("-", None)]
        for impl, v in others:
            ratio = f"{t / v:.2f}" if v else "-"
            pt = f"{v / 1e3:.2f} us" if v else "-"
            print(f"| {op} | {size} | {t / 1e3:.2f} us | {impl} | {pt} | {ratio} | {mflops} |")


if __name__ == "__main__":
    main(sys.argv[1])
