These are notes about a mission,
not a template.
