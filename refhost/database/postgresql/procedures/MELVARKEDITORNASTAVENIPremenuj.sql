-- Gives the user's own column setting another name, description and sharing.
--
-- Refusals: ML060 there is none; ML061 it is another user's; ML062 no name, ML064 too long a name, ML063 a name that
-- another of his settings of the type has.
create function MELVARKEDITORNASTAVENIPremenuj(
    a_ID integer default null,
    a_NAZEV text default null,
    a_KOMENTAR text default null,
    a_SDILENE boolean default null)
returns void
language sql as $$
    select refuse_foreign_setting(a_ID);

    select refuse_setting_name(a_NAZEV, s.TYPEDITACE, s.ID) from EDITORNASTAVENI s where s.ID = a_ID;

    update EDITORNASTAVENI
    set NAZEV = typed(a_NAZEV), KOMENTAR = a_KOMENTAR, SDILENE = coalesce(a_SDILENE, false)::integer
    where ID = a_ID
$$;
