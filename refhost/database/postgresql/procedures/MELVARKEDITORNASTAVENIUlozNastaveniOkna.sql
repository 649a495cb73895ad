-- Keeps where the user's editor window of the type stands.
--
-- Refusals: ML065 no type.
create function MELVARKEDITORNASTAVENIUlozNastaveniOkna(a_TYPEDITACE integer default null, a_DATA text default null)
returns void
language sql as $$
    select refuse('ML065') where a_TYPEDITACE is null;

    insert into EDITOROKNO (UZIVID, TYPEDITACE, DATA)
    values (user_row(), a_TYPEDITACE, a_DATA)
    on conflict (UZIVID, TYPEDITACE) do update set DATA = excluded.DATA
$$;
