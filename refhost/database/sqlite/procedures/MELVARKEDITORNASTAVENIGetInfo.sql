-- The name, description and sharing of a column setting that the user may see.
--
-- Refusals: ML060 there is none.
--
-- in: a_ID integer
-- returns: NAZEV, KOMENTAR, SDILENE

select refuse_unknown_setting(:a_ID) as refusal;

select NAZEV, KOMENTAR, SDILENE from EDITORNASTAVENI where ID = :a_ID;
