"""Read, check and export the content of a language course.

Every answer is a plain Python value equal to what ``lumora ... --json`` prints. One content
root is open in a process at a time. See docs/python.md.
"""

from ._lumora import (  # noqa: F401
    ContentError,
    Discipline,
    Error,
    Glossary,
    Grammar,
    NotFoundError,
    Resource,
    ResourceIterator,
    Root,
    __version__,
    check,
    open,
    sample,
)

__all__ = ["ContentError", "Discipline", "Error", "Glossary", "Grammar", "NotFoundError",
           "Resource", "ResourceIterator", "Root", "__version__", "check", "open", "sample"]
