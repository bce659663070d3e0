"""What others say of the calendar, for the tests: the Easter Sundays or the holidays of a country, from the year
FIRST to the year LAST, one per line.

usage: outside_calendar.py easter FIRST LAST
       outside_calendar.py COUNTRY FIRST LAST
"""
import sys

import holidays
from dateutil.easter import easter

subject, first, last = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
years = range(first, last + 1)
if subject == "easter":
    for year in years:
        print(easter(year))
else:
    for day, name in sorted(getattr(holidays, subject)(years=years, observed=False).items()):
        print(day, name)
