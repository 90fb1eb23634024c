# A template without phases: the log has its section lines and nothing else.
