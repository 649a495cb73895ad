-- From version 1 to 2: what changes in tables, constraints, indices and data. Functions, views and procedures are made
-- anew from their own files by every upgrade and need nothing here; they are gone while this runs.

drop trigger DODCENIK_PREKRYV on DODCENIK;
drop function DODCENIK_PREKRYV();
alter table DODCENIK drop constraint DODCENIK_DODVID_SKLPID_PLATIOD_KEY;
create index DODCENIK_DODVID on DODCENIK (DODVID, SKLPID, PLATIOD);
alter table DODCENIK add constraint DODCENIK_PREKRYV exclude using gist (
    int4range(DODVID, DODVID, '[]') with &&, int4range(SKLPID, SKLPID, '[]') with &&,
    daterange(PLATIOD, PLATIDO, '[]') with &&);
