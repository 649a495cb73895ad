-- Keeps a document as a new column setting of the user; it becomes his default for its type. Returns its identifier.
--
-- Refusals: ML065 no type; ML062 no name, ML064 too long a name, ML063 a name that the user has already.
create function MELVARKEDITORNASTAVENIUlozNove(
    a_NAZEV text default null,
    a_TYPEDITACE integer default null,
    a_SDILENE boolean default null,
    a_KOMENTAR text default null,
    a_DATA text default null)
returns table (ID integer)
language plpgsql as $$
#variable_conflict use_column
declare
    added integer;
begin
    if a_TYPEDITACE is null then
        perform refuse('ML065');
    end if;
    perform user_row();
    perform refuse_setting_name(a_NAZEV, a_TYPEDITACE, null);

    insert into EDITORNASTAVENI (UZIVID, TYPEDITACE, NAZEV, KOMENTAR, SDILENE, DATA)
    values (user_row(), a_TYPEDITACE, typed(a_NAZEV), a_KOMENTAR, coalesce(a_SDILENE, false)::integer, a_DATA)
    returning EDITORNASTAVENI.ID into added;
    perform make_default_setting(added);
    return query select added;
end
$$;
