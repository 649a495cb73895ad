-- Loads a column setting that the user may see; it becomes his default for its type.
--
-- Refusals: ML060 there is none.
--
-- in: a_ID integer
-- returns: DATA

select refuse_unknown_setting(:a_ID) as refusal;

-- include: user-row

delete from CHOSEN_SETTING;
insert into CHOSEN_SETTING (ID) values (:a_ID);

-- include: default-setting

select DATA from EDITORNASTAVENI where ID = :a_ID;
