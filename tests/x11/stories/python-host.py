"""The example host in Python."""

import story
from example_host import PythonHost, change_phone

story.run(change_phone, kind=PythonHost)
