-- Refuses a name for a column setting: an empty one (ML062), one of more than 100 characters (ML064), one that another
-- setting of the user has in the same type (ML063). `id` is the setting that is renamed, null for a new one. The user's
-- row exists already: his sessions give names one after the other, so that two of them cannot give the same.
create function refuse_setting_name(name text, type integer, id integer) returns void
language sql as $$
    select from UZIVATEL where JMENO = current_user_name() for no key update;

    select refuse('ML062') where typed(name) is null;

    select refuse('ML064', typed(name))
    where char_length(typed(name)) > 100;

    select refuse('ML063', s.NAZEV)
    from EDITORNASTAVENI s
    join UZIVATEL u on u.ID = s.UZIVID
    where s.NAZEV = typed(name) and s.TYPEDITACE = type and u.JMENO = current_user_name()
      and s.ID is distinct from refuse_setting_name.id
$$;
