#!/usr/bin/env python3
"""Converts every effect below a folder on the workers of a cluster.

    convert_with_dask.py FOLDER RECORDS [SCHEDULER]

RECORDS becomes a folder with a file for each batch of effects, a JSON record a line. A batch whose file is there is left
out, so that a run that was interrupted goes on where it was. Without the address of a SCHEDULER the workers are processes
of this machine. All workers need effectctl in their PATH, and the same folders.
"""

import os
import pathlib
import subprocess
import sys

from distributed import Client, LocalCluster, as_completed

BATCH = 200  # files: a task costs more than a file does


def convert(files, records):
    """Writes the records of these files, whole or not at all. Returns the messages about files that are bad."""
    result = subprocess.run(["effectctl", "convert", "--jsonl", *files], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                            text=True)
    if result.returncode not in (0, 1):  # 1: a file is bad, the others are done
        raise RuntimeError(result.stderr)
    partial = f"{records}.{os.getpid()}"
    with open(partial, "w", encoding="utf-8") as file:
        file.write(result.stdout)
    os.replace(partial, records)
    return result.stderr


def main():
    folder, records = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    records.mkdir(exist_ok=True)
    files = sorted(str(path) for suffix in ("json", "bin") for path in folder.rglob(f"*.{suffix}"))
    batches = {records / f"{start // BATCH:06}.jsonl": files[start:start + BATCH]
               for start in range(0, len(files), BATCH)}
    missing = {path: batch for path, batch in batches.items() if not path.exists()}
    if len(sys.argv) > 3:
        client = Client(sys.argv[3])
    else:
        client = Client(LocalCluster(processes=True, threads_per_worker=1, dashboard_address=None, host="127.0.0.1"))
    with client:
        tasks = [client.submit(convert, batch, str(path), pure=False) for path, batch in missing.items()]
        for task in as_completed(tasks):
            sys.stderr.write(task.result())
    print(f"{len(missing)} of {len(batches)} batches converted")


if __name__ == "__main__":
    main()
