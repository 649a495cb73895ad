-- Deletes the user's own column setting. Whoever had it as a default has none afterwards.
--
-- Refusals: ML060 there is none; ML061 it is another user's.
create function MELVARKEDITORNASTAVENISmaz(a_ID integer default null) returns void
language sql as $$
    select refuse_foreign_setting(a_ID);

    delete from EDITORNASTAVENI where ID = a_ID
$$;
