-- From version 1 to 2: puts right in the old tables what the new ones would refuse, adds rows that the new version needs,
-- and drops indices, triggers and columns that have gone. The views are gone while this runs. Afterwards every table is
-- made anew from tables.sql and takes over its rows, so that new columns with a default, constraints, indices and triggers
-- need nothing here.

-- No document is its own source.
delete from DODAKZDROJ where DODKIDZDROJ = DODKID;
delete from DODOBJZDROJ where DDOBIDZDROJ = DDOBID;
