"""Every kind of failure is an exception that says why; nothing a script does crashes."""

import gc
import os
import shutil

import pytest

import lumora
from conftest import tool_json


def test_a_folder_without_content_ini_is_file_not_found(tmp_path):
    with pytest.raises(FileNotFoundError, match="no Content.ini"):
        lumora.open(str(tmp_path))
    with pytest.raises(FileNotFoundError):
        lumora.check(str(tmp_path))


def test_one_root_is_open_at_a_time(sample_dir):
    first = lumora.open(sample_dir)
    with pytest.raises(lumora.Error, match="another content root is open") as raised:
        lumora.open(sample_dir)
    assert "another content root" in raised.value.reason
    first.close()
    first.close()
    with lumora.open(sample_dir) as second:
        assert second.discipline(1).id == 1
    assert second.closed


def test_bad_arguments_are_value_or_type_errors(root, sample_dir):
    d = root.discipline(1)
    rid = d.resource_ids(40)[0]
    with pytest.raises(KeyError):
        root.discipline(99)
    with pytest.raises(lumora.NotFoundError):
        root.discipline(99)
    for bad in [lambda: d.resource(40, rid, path_kind="local"),
                lambda: d.resource(40, rid, order=4),
                lambda: d.resource(40, -1),
                lambda: d.resource_ids(1 << 32),
                lambda: d.media_path(kind=4, folder=40, resource=rid),
                lambda: d.media_path(kind=1, folder=40, resource=rid, path_kind="ftp"),
                lambda: d.glossary.word(1, quality=256),
                lambda: d.export(packages=[1], to=sample_dir, quality=(0,)),
                lambda: lumora.check(sample_dir, checks=["no-such-check"]),
                lambda: lumora.sample(sample_dir, scale=0)]:
        with pytest.raises(ValueError):
            bad()
    for bad in [lambda: d.resource("40", rid),
                lambda: d.resources(type="40"),
                lambda: lumora.check(sample_dir, progress=5),
                lambda: lumora.check(sample_dir, checks="index")]:
        with pytest.raises(TypeError):
            bad()


def test_what_is_not_there_is_not_found(root):
    d = root.discipline(1)
    for missing in [lambda: d.resource(6, 0x100001).to_dict(),
                    lambda: d.index(6),
                    lambda: d.glossary.word(999999),
                    lambda: d.grammar.point(999999)]:
        with pytest.raises(lumora.NotFoundError):
            missing()


def test_a_broken_resource_is_a_content_error_and_iteration_goes_past_it(sample_dir, tmp_path):
    copy = str(tmp_path / "content")
    shutil.copytree(sample_dir, copy)
    with lumora.open(copy) as root:
        d = root.discipline(1)
        ids = d.resource_ids(5)
        broken = ids[1]
        name = "D001/C%04u/r0000005/r%07u.ars" % (broken >> 20, broken & 0xFFFFF)
        os.truncate(os.path.join(copy, name), 10)
        handles = list(d.resources(type=5))
        assert [r.id for r in handles] == ids
        failed = []
        for r in handles:
            try:
                r.to_dict()
            except lumora.ContentError as error:
                failed.append(r.id)
                assert (error.file, error.byte is not None) == (name, True)
                with pytest.raises(lumora.ContentError):
                    r.course
                tool = tool_json("resource", copy, "-d", 1, "--type", 5, "--id", r.id,
                                 ok_codes=(1,))
                assert str(error) == tool["reason"]
                assert error.reason in tool["reason"]
        assert failed == [broken]


def test_objects_outlive_their_root_and_raise_once_it_is_closed(sample_dir):
    root = lumora.open(sample_dir)
    d = root.discipline(1)
    rid = d.resource_ids(40)[0]
    read, unread = d.resource(40, rid), d.resource(40, d.resource_ids(40)[1])
    read.to_dict()
    it = d.resources()
    next(it)
    glossary, grammar = d.glossary, d.grammar
    root.close()
    for use in [lambda: d.id, lambda: d.resource_ids(40), lambda: read.to_dict(),
                lambda: unread.course, lambda: next(it), lambda: glossary.letters(),
                lambda: grammar.levels(), lambda: root.disciplines, lambda: root.discipline(1),
                lambda: d.media_path(1, 40, rid), lambda: root.classification()]:
        with pytest.raises(lumora.Error, match="closed"):
            use()
    # A root dropped before what it gave stays open until they are gone too.
    d = lumora.open(sample_dir).discipline(1)
    assert d.resource_ids(40)
    del d
    gc.collect()
    lumora.open(sample_dir).close()


class Stop(Exception):
    pass


def test_a_callback_that_raises_stops_the_work_and_comes_out(root, sample_dir, tmp_path):
    calls = []

    def stop(done, total):
        calls.append((done, total))
        raise Stop()

    with pytest.raises(Stop):
        lumora.check(sample_dir, progress=stop)
    assert len(calls) == 1
    seen = []
    report = lumora.check(sample_dir, checks=["index", "resources"],
                          progress=lambda done, total: seen.append((done, total)))
    done, total = seen[-1]
    assert done == total > 0 and {c["name"] for c in report["checks"]} == {"index", "resources"}

    calls.clear()
    d = root.discipline(1)
    package = d.packages()[0]["id"]
    with pytest.raises(Stop):
        d.export(packages=[package], to=str(tmp_path / "stopped"), progress=stop)
    assert len(calls) == 1


def test_export_and_check_equal_the_tool(root, sample_dir, tmp_path):
    d = root.discipline(1)
    packages = [p["id"] for p in d.packages()][:2]
    steps = []
    mine = d.export(packages=packages, to=str(tmp_path / "mine"), quality=[1, 2],
                    progress=lambda done, total: steps.append(total))
    unchecked = d.export(packages=packages, to=str(tmp_path / "unchecked"), quality=[1, 2],
                         check=False)
    root.close()
    exported = ("export", sample_dir, "-d", 1, "--packages", ",".join(map(str, packages)),
                "--quality", "1,2")
    theirs = tool_json(*exported, "--to", tmp_path / "theirs")
    theirs_unchecked = tool_json(*exported, "--to", tmp_path / "theirs-unchecked", "--no-check")
    # The export's steps come first, then the check's.
    assert mine["ok"] and mine["resources"] + 16 in steps
    for doc in (mine, theirs, unchecked, theirs_unchecked):
        doc.pop("exportFolder")
    assert "checks" in mine and "checks" not in unchecked
    assert mine == theirs and unchecked == theirs_unchecked
    assert lumora.check(sample_dir) == tool_json("check", sample_dir, ok_codes=(0, 1))
    assert lumora.check(str(tmp_path / "mine"), quality=[1, 2]) == tool_json(
        "check", tmp_path / "mine", "--quality", "1,2", ok_codes=(0, 1))
