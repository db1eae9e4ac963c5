"""The example host in C."""

import story
from example_host import CHost, change_phone

story.run(change_phone, kind=CHost)
