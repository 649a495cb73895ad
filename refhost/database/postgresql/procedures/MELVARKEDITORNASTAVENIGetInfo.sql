-- The name, description and sharing of a column setting that the user may see.
--
-- Refusals: ML060 there is none.
create function MELVARKEDITORNASTAVENIGetInfo(a_ID integer default null)
returns table (NAZEV text, KOMENTAR text, SDILENE smallint)
language sql stable as $$
    select refuse_unknown_setting(a_ID);

    select s.NAZEV, s.KOMENTAR, s.SDILENE from EDITORNASTAVENI s where s.ID = a_ID
$$;
