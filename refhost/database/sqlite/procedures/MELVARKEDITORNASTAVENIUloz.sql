-- Overwrites the user's own column setting with a new document; it becomes his default for its type.
--
-- Refusals: ML060 there is none; ML061 it is another user's.
--
-- in: a_ID integer
-- in: a_DATA

select refuse_foreign_setting(:a_ID) as refusal;

update EDITORNASTAVENI set DATA = :a_DATA where ID = :a_ID;

delete from CHOSEN_SETTING;
insert into CHOSEN_SETTING (ID) values (:a_ID);

-- include: default-setting
