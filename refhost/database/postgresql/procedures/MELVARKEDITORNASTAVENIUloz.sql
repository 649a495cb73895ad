-- Overwrites the user's own column setting with a new document; it becomes his default for its type.
--
-- Refusals: ML060 there is none; ML061 it is another user's.
create function MELVARKEDITORNASTAVENIUloz(a_ID integer default null, a_DATA text default null) returns void
language sql as $$
    select refuse_foreign_setting(a_ID);

    update EDITORNASTAVENI set DATA = a_DATA where ID = a_ID;

    select make_default_setting(a_ID)
$$;
