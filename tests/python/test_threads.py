"""Threads and memory."""

import concurrent.futures
import gc
import os
import threading
import time

import editoreffects
from conftest import EFFECTS, SOURCE, varied

GOLDEN = [path.read_bytes() for path in sorted((SOURCE / "tests" / "golden").glob("Effect.*.varied.json"))
          if not any(name in path.name for name in ("Echo.Echo", "BandEq", "Effect.Frame"))]


def holder_of(count):
    one = editoreffects.create("Effect::ManualEnhance", hue=0.25).to_json()
    return ('{"$meta":{"class":"Effect::EffectsHolder"},"effects":[' + ",".join([one] * count) + "]}").encode()


def test_threads_work_side_by_side_on_effects_of_their_own():
    def work(number):
        for content in GOLDEN[number::2]:
            effect = editoreffects.load(content)
            effect.intensity = number / 8
            assert editoreffects.from_json(effect.to_json()) == effect
            assert editoreffects.from_binary(effect.to_binary()).intensity == number / 8
            editoreffects.convert(effect)
            repr(effect)
        return number

    with concurrent.futures.ThreadPoolExecutor(8) as pool:
        assert sorted(pool.map(work, range(8))) == list(range(8))


def test_the_interpreter_goes_on_while_a_file_is_read():
    """A thread that only counts gets its turn during a load, a save and a conversion, each of which is one call."""
    content = holder_of(6000)
    steps = 0
    during = {}
    isDone = threading.Event()

    def count():
        nonlocal steps
        while not isDone.is_set():
            steps += 1
            time.sleep(0)

    counter = threading.Thread(target=count)
    counter.start()

    def measured(name, work):
        # With the lock held the other thread gets a turn or two between the calls. A busy machine may give it no more
        # during one call, but not during ten.
        for _ in range(10):
            before = steps
            result = work()
            during[name] = max(during.get(name, 0), steps - before)
            if during[name] > 10:
                break
        return result

    try:
        holder = measured("load", lambda: editoreffects.load(content))
        holder.tag = "changed"
        measured("to_json", holder.to_json)
        measured("to_binary", holder.to_binary)
        measured("convert", lambda: editoreffects.convert(editoreffects.load(holder_of(200))))
    finally:
        isDone.set()
        counter.join()
    assert all(count > 10 for count in during.values()), during


def test_a_change_waits_for_a_save_in_another_thread():
    holder = editoreffects.load(holder_of(4000))
    holder.tag = "before"

    def seconds(work):
        start = time.monotonic()
        work()
        return time.monotonic() - start

    saving = seconds(holder.to_json)

    def waiting():
        saver = threading.Thread(target=holder.to_json)
        saver.start()
        time.sleep(saving / 4)
        waited = seconds(lambda: setattr(holder.effects[7], "hue", 0.5))
        saver.join()
        return waited

    # A thread may start late on a machine that is busy.
    assert any(waiting() > saving / 8 for _ in range(3))


def test_changes_and_saves_in_threads_leave_whole_effects():
    holder = editoreffects.load(holder_of(300))
    effects = holder.effects
    isDone = threading.Event()

    def change():
        number = 0
        while not isDone.is_set():
            number += 1
            effects[number % 300].hue = number / 7
            holder.tag = str(number)
            holder.effects = holder.effects[:290] + [None] * (number % 10)

    changer = threading.Thread(target=change)
    changer.start()
    try:
        for _ in range(5):
            assert editoreffects.from_json(holder.to_json()).class_name == "Effect::EffectsHolder"
            assert editoreffects.from_binary(holder.to_binary()).class_name == "Effect::EffectsHolder"
    finally:
        isDone.set()
        changer.join()


def resident():
    with open("/proc/self/statm") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def test_memory_stays_flat():
    effects = [varied(described) for described in EFFECTS]

    def work(count):
        for number in range(count):
            effect = editoreffects.load(GOLDEN[number % len(GOLDEN)])
            effect.intensity = 0.5
            effect.parameters()
            for key in effect:
                getattr(effect, key)
            effect == effects[number % len(effects)]
            try:
                editoreffects.load(GOLDEN[number % len(GOLDEN)][:-5])
            except editoreffects.ArchiveError:
                pass
            try:
                effect.intensity = "x"
            except editoreffects.ParameterError:
                pass
            if "effects" in effect:
                held = effect.effects
                effect.effects = held
        gc.collect()

    work(2000)
    before = resident()
    work(10000)
    assert resident() - before < 4 << 20
