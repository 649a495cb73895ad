-- Keeps where the user's editor window of the type stands.
--
-- Refusals: ML065 no type.
--
-- in: a_TYPEDITACE integer
-- in: a_DATA

select refuse('ML065') as refusal where :a_TYPEDITACE is null;

-- include: user-row

insert into EDITOROKNO (UZIVID, TYPEDITACE, DATA)
select ID, :a_TYPEDITACE, :a_DATA from UZIVATEL where JMENO = current_user_name()
on conflict (UZIVID, TYPEDITACE) do update set DATA = excluded.DATA;
