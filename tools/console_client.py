"""The viewer's console from Python: each call is one request and its answer."""
import json
import socket
import time


class Refused(Exception):
    """What the viewer answered that it could not do."""


class Console:
    """A connection to the viewer that listens at a path, made as soon as it does.

    Raises OSError if none listens within ten seconds, ConnectionError when the viewer has ended, Refused with the
    reason for what can't be done. With a limit in seconds, TimeoutError when an answer takes longer.
    """

    def __init__(self, path, limit=None):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(limit)
        for attempt in range(100):
            try:
                self.socket.connect(path)
                break
            except OSError:
                if attempt == 99:
                    raise
                time.sleep(0.1)
        self.lines = self.socket.makefile("rw", encoding="utf-8")

    def __call__(self, method, **params):
        self.lines.write(json.dumps({"jsonrpc": "2.0", "id": 1, "method": method, "params": params}) + "\n")
        self.lines.flush()
        line = self.lines.readline()
        if not line:
            raise ConnectionError("the viewer has ended")
        answer = json.loads(line)
        if "error" in answer:
            raise Refused(answer["error"]["message"])
        return answer["result"]
