-- A save's identity lets a client that lost the link find out what became of its closing call. The client sets it in the
-- session (melvark.save); the closing call writes it down with what it saves.

-- Refuses what is no identity (ML056).
create function refuse_wrong_identity(identity text) returns void
language sql as $$
    select refuse('ML056', refuse_wrong_identity.identity)
    where (refuse_wrong_identity.identity ~ '^[0-9a-f]{32}$') is not true
$$;

-- Writes down that the session's save has come, as a part of its closing call; a save without an identity needs nothing.
-- One that was given up, or has come before, is refused (ML041): the row's key also has whoever asks for a save wait
-- until its closing call is over.
create function note_save(kind text, document integer) returns void
language plpgsql as $$
declare
    identity constant text := nullif(current_setting('melvark.save', true), '');
begin
    if identity is null then
        return;
    end if;
    insert into ULOZENI (IDENTITA, UZIVATEL, DRUH, DOKLAD)
    values (identity, current_user_name(), kind, coalesce(document, 0))
    on conflict do nothing;
    if not found then
        perform refuse('ML041');
    end if;
    perform set_config('melvark.save', '', false);

    delete from ULOZENI u
    where u.IDENTITA in (select o.IDENTITA
                         from ULOZENI o
                         where o.KDY < timezone('UTC', now()) - interval '30 days'
                         order by o.KDY limit 100
                         for update skip locked);
end
$$;

-- Whether the save that the session is about has come for the document.
create function is_saved(kind text, document integer) returns boolean
language sql stable as $$
    select exists (select
                   from ULOZENI u
                   where u.IDENTITA = current_setting('melvark.save', true) and u.DRUH = kind and u.DOKLAD = document)
$$;
