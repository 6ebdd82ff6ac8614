#!/usr/bin/env python3
"""Renames a resource in all projects of a folder, on many processes: rename_resource_dask.py OLD NEW FOLDER

The processes are those of a cluster on this machine; Client("tcp://scheduler:8786") takes another one, whose machines see
the same folder. A task is a batch of files: one task a file would cost more than the file does.
"""

from __future__ import annotations

import pathlib
import sys
from typing import Iterator, List, Tuple

from distributed import Client, LocalCluster

import editoreffects
from rename_resource import files_in, rename_in_file

BATCH = 200  # files


def batches_of(files: List[pathlib.Path]) -> Iterator[List[pathlib.Path]]:
    for start in range(0, len(files), BATCH):
        yield files[start:start + BATCH]


def rename_in_batch(batch: List[pathlib.Path], old: str, new: str) -> Tuple[int, List[str]]:
    """How many were renamed, and what went wrong. Runs on a worker."""
    renamed = 0
    failures = []
    for file in batch:
        try:
            renamed += rename_in_file(file, old, new)
        except editoreffects.Error as error:
            failures.append(str(error))
    return renamed, failures


def main(arguments: List[str]) -> int:
    if len(arguments) != 3:
        print("usage: rename_resource_dask.py OLD NEW FOLDER", file=sys.stderr)
        return 2
    old, new, folder = arguments
    batches = list(batches_of(list(files_in(pathlib.Path(folder)))))
    with LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None, host="127.0.0.1") as cluster:
        with Client(cluster) as client:
            results = client.gather(client.map(rename_in_batch, batches, old=old, new=new))
    for _, failures in results:
        for failure in failures:
            print(failure, file=sys.stderr)
    print(f"{sum(renamed for renamed, _ in results)} renamed in {len(batches)} batches")
    return 1 if any(failures for _, failures in results) else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
