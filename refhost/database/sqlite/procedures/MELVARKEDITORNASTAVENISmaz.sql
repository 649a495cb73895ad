-- Deletes the user's own column setting. Whoever had it as a default has none afterwards.
--
-- Refusals: ML060 there is none; ML061 it is another user's.
--
-- in: a_ID integer

select refuse_foreign_setting(:a_ID) as refusal;

delete from EDITORNASTAVENI where ID = :a_ID;
