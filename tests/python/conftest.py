"""The sample content root written once per session, the root opened on it, and the tool whose
--json documents the module's answers must equal."""

import json
import os
import subprocess

import pytest

import lumora

TOOL = os.environ.get("LUMORA_TOOL", "lumora")


def tool_json(*args, ok_codes=(0,)):
    """The document `lumora ARGS --json` prints."""
    run = subprocess.run([TOOL, *map(str, args), "--json"], capture_output=True, text=True,
                         check=False)
    assert run.returncode in ok_codes, run.stderr
    return json.loads(run.stdout)


@pytest.fixture(scope="session")
def sample_dir(tmp_path_factory):
    # A folder name outside ASCII: paths in the answers stay the UTF-8 they are.
    folder = tmp_path_factory.mktemp("contenu-é")
    lumora.sample(str(folder), scale=1)
    return str(folder)


@pytest.fixture()
def root(sample_dir):
    """The sample opened with its databases; closed after each test so that tests may open."""
    with lumora.open(sample_dir, databases=True) as opened:
        yield opened
