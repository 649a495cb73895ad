-- From version 1 to 2: what changes in tables, constraints, indices and data. Functions, views and procedures are made
-- anew from their own files by every upgrade and need nothing here; they are gone while this runs.

drop trigger DODCENIK_PREKRYV on DODCENIK;
drop function DODCENIK_PREKRYV();
alter table DODCENIK drop constraint DODCENIK_DODVID_SKLPID_PLATIOD_KEY;
create index DODCENIK_DODVID on DODCENIK (DODVID, SKLPID, PLATIOD);
alter table DODCENIK add constraint DODCENIK_PREKRYV exclude using gist (
    int4range(DODVID, DODVID, '[]') with &&, int4range(SKLPID, SKLPID, '[]') with &&,
    daterange(PLATIOD, PLATIDO, '[]') with &&);

-- No document is its own source.
delete from DODAKZDROJ where DODKIDZDROJ = DODKID;
delete from DODOBJZDROJ where DDOBIDZDROJ = DDOBID;

alter table DODAKZDROJ add check (DODKIDZDROJ <> DODKID);
alter table DODOBJZDROJ add check (DDOBIDZDROJ <> DDOBID);
alter table DPH add check (SAZBA between 0 and 100);
alter table SKLADPOL drop constraint SKLADPOL_TRVANLIVOSTDNU_CHECK;
alter table SKLADPOL add check (TRVANLIVOSTDNU between 0 and 36500);
alter table SKPL drop constraint SKPL_CHECK;
alter table SKPL add check (FAKTOR > 0 and (PORADI <> 0 or FAKTOR = 1));
alter table DODCENIK add check (SLEVA between 0 and 100);
alter table DODAKPOL add check (SLEVA between 0 and 100);
