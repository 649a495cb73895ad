-- A company's tables as somebody else might have them: nothing here is named for the editor, but the view at the end.
create table warehouse (name text primary key);
create table item (name text primary key, price real not null);
create table note_line (note integer not null, item text not null references item, quantity real not null, price real not null);
insert into warehouse values ('Main'), ('Annex');
insert into item values ('Paper cups', 2.5), ('Napkins', 40), ('Bin bags', 12.25);

-- Lines of a save until its closing call; the rule of this company stands where no program can go around it.
create table arriving (item text not null, quantity real not null, price real not null);
create trigger quantity_is_whole before insert on arriving when new.quantity <> round(new.quantity)
begin select raise(abort, 'This company sells whole pieces only. Type a whole quantity.'); end;

-- The editor's one query reads it: select NAZEV from SKLAD_V order by NAZEV.
create view SKLAD_V as select name as NAZEV from warehouse;
