-- Keeps a document as a new column setting of the user; it becomes his default for its type. Returns its identifier.
--
-- Refusals: ML065 no type; ML062 no name, ML064 too long a name, ML063 a name that the user has already.
--
-- in: a_NAZEV
-- in: a_TYPEDITACE integer
-- in: a_SDILENE boolean
-- in: a_KOMENTAR
-- in: a_DATA
-- returns: ID

select refuse('ML065') as refusal where :a_TYPEDITACE is null;

select refuse_setting_name(:a_NAZEV, :a_TYPEDITACE, null) as refusal;

-- include: user-row

insert into EDITORNASTAVENI (UZIVID, TYPEDITACE, NAZEV, KOMENTAR, SDILENE, DATA)
select ID, :a_TYPEDITACE, typed(:a_NAZEV), :a_KOMENTAR, coalesce(:a_SDILENE, 0), :a_DATA
from UZIVATEL
where JMENO = current_user_name();

delete from CHOSEN_SETTING;
insert into CHOSEN_SETTING (ID) select max(ID) from EDITORNASTAVENI;

-- include: default-setting

select ID from CHOSEN_SETTING;
