-- Gives the user's own column setting another name, description and sharing.
--
-- Refusals: ML060 there is none; ML061 it is another user's; ML062 no name, ML064 too long a name, ML063 a name that
-- another of his settings of the type has.
--
-- in: a_ID integer
-- in: a_NAZEV
-- in: a_KOMENTAR
-- in: a_SDILENE boolean

select refuse_foreign_setting(:a_ID) as refusal;

select refuse_setting_name(:a_NAZEV, TYPEDITACE, ID) as refusal from EDITORNASTAVENI where ID = :a_ID;

update EDITORNASTAVENI
set NAZEV = typed(:a_NAZEV), KOMENTAR = :a_KOMENTAR, SDILENE = coalesce(:a_SDILENE, 0)
where ID = :a_ID;
