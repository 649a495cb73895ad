-- Loads a column setting that the user may see; it becomes his default for its type.
--
-- Refusals: ML060 there is none.
create function MELVARKEDITORNASTAVENINacti(a_ID integer default null) returns table (DATA text)
language sql as $$
    -- It must not be deleted before it has become the default.
    select from EDITORNASTAVENI s where s.ID = a_ID for key share;

    select refuse_unknown_setting(a_ID);

    select make_default_setting(a_ID);

    select s.DATA from EDITORNASTAVENI s where s.ID = a_ID
$$;
