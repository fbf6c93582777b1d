"""The module's answers are the tool's --json documents, value for value."""

from concurrent.futures import ThreadPoolExecutor

from conftest import tool_json


def tool_resource(sample_dir, discipline, rtype, rid, path_kind="url"):
    return tool_json("resource", sample_dir, "-d", discipline, "--type", rtype, "--id", rid,
                     "--path-kind", path_kind)


def media_of(document):
    """Every media record a resource document holds, wherever it is nested."""
    if isinstance(document, list):
        return [m for item in document for m in media_of(item)]
    if not isinstance(document, dict):
        return []
    found = [document["media"]] if isinstance(document.get("media"), dict) else []
    return found + [m for key, value in document.items() if key != "media"
                    for m in media_of(value)]


def test_every_resource_of_every_discipline_equals_the_tool(root, sample_dir):
    mine, asked = {}, []
    for d in root.disciplines:
        order = [(r.type, r.id) for r in d.resources()]
        assert order == [(t, i) for t in d.types for i in d.resource_ids(t)]
        for r in d.resources():
            mine[(d.id, r.type, r.id)] = r.to_dict()
            asked.append((d.id, r.type, r.id))
    assert len(asked) > 100
    with ThreadPoolExecutor(2) as pool:
        theirs = list(pool.map(lambda key: tool_resource(sample_dir, *key), asked))
    wrong = [key for key, doc in zip(asked, theirs) if mine[key] != doc]
    assert not wrong, f"{len(wrong)} resources differ, the first {wrong[:5]}"


def test_one_type_iterates_in_index_order_and_fields_match_the_document(root):
    d = root.discipline(1)
    handles = list(d.resources(type=40))
    assert [r.id for r in handles] == d.resource_ids(40)
    for r in handles:
        doc = r.to_dict()
        assert (r.type, r.id, r.course, r.number) == (40, doc["resourceId"] and r.id,
                                                      doc["course"], doc["number"])
    assert list(d.resources(type=6)) == [] and d.resource_ids(6) == []


def test_disciplines_are_those_the_tool_opens(root, sample_dir):
    opened = tool_json("open", sample_dir)["disciplines"]
    assert [d.id for d in root.disciplines] == [o["id"] for o in opened]
    for d, o in zip(root.disciplines, opened):
        assert (d.types, d.local_root, d.url_root, d.unc_root, d.data_folder) == (
            o["types"], o["localRoot"], o["urlRoot"], o["uncRoot"], o["dataFolder"])


def test_lists_and_lexicon_equal_the_tool(root, sample_dir):
    d = root.discipline(1)
    word = d.glossary.find("a")[0]["words"][0]["fnId"]
    point = d.grammar.levels()[-1]["points"][-1]
    cases = [
        (lambda: d.index(40), ("index", sample_dir, "-d", 1, "--type", 40)),
        (lambda: d.index(), ("index", sample_dir, "-d", 1)),
        (lambda: d.glossary.find("a"), ("glossary", sample_dir, "-d", 1, "find", "a")),
        (lambda: d.glossary.find("a", prefix=True, need_code=True),
         ("glossary", sample_dir, "-d", 1, "find", "a", "--prefix", "--need-code")),
        (lambda: d.glossary.word(word), ("glossary", sample_dir, "-d", 1, "word", word)),
        (lambda: d.glossary.word(word, path_kind="url", quality=2),
         ("glossary", sample_dir, "-d", 1, "word", word, "--path-kind", "url", "--quality", 2)),
        (lambda: d.glossary.letters(), ("glossary", sample_dir, "-d", 1, "letters")),
        (lambda: d.grammar.point(point), ("grammar", sample_dir, "-d", 1, "point", point)),
        (lambda: d.grammar.find("e", language=9),
         ("grammar", sample_dir, "-d", 1, "find", "e", "--language", 9)),
        (lambda: d.grammar.levels(), ("grammar", sample_dir, "-d", 1, "levels")),
        (lambda: d.grammar.categories(), ("grammar", sample_dir, "-d", 1, "categories")),
        (lambda: root.classification(), ("classification", sample_dir)),
        (lambda: d.packages(), ("packages", sample_dir, "-d", 1)),
    ]
    for ask, args in cases:
        assert ask() == tool_json(*args), args


def test_unc_paths_and_media_paths_equal_the_tool(root, sample_dir):
    d = root.discipline(1)
    rid = d.resource_ids(40)[0]
    assert d.resource(40, rid, path_kind="unc").to_dict() == tool_resource(
        sample_dir, 1, 40, rid, "unc")
    media = [m for m in media_of(d.resource(40, rid).to_dict()) if m["path"]]
    assert media, "the sample's first exercise has media"
    for m in media[:3]:
        args = ("media", sample_dir, "-d", 1, "--kind", m["kind"], "--folder", m["folder"],
                "--resource", m["resource"], "--path-kind", "unc", "--order", 2)
        assert d.media_path(m["kind"], m["folder"], m["resource"], path_kind="unc",
                            order=2) == tool_json(*args)["path"]
    assert d.media_path(kind=3, folder=40, resource=0xFFFFF) is None


def test_four_threads_read_every_resource_at_once(root):
    d = root.discipline(1)
    alone = [r.to_dict() for r in d.resources()]

    def read(_):
        return [r.to_dict() for r in d.resources()]

    with ThreadPoolExecutor(4) as pool:
        for seen in pool.map(read, range(4)):
            assert seen == alone
