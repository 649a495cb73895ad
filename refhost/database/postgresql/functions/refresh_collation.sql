-- Makes the indices over names anew when the server's library sorts by another version of the Czech rules than the one
-- that wrote them. Sessions that notice it at once do it one after the other, and all but the first find it done.
create function refresh_collation() returns void
language plpgsql security definer set search_path = melvark, pg_temp as $$
declare
    outdated regclass;
begin
    perform pg_advisory_xact_lock(hashtext('melvark collation'));
    if not exists (select 1
                   from pg_catalog.pg_collation
                   where oid = 'melvark.czech'::regcollation
                     and collversion is distinct from pg_catalog.pg_collation_actual_version(oid))
    then
        return;
    end if;
    for outdated in
        select i.indexrelid
        from pg_catalog.pg_index i
        join pg_catalog.pg_class c on c.oid = i.indrelid
        where c.relnamespace = 'melvark'::regnamespace and 'melvark.czech'::regcollation = any (i.indcollation)
    loop
        execute format('reindex index %s', outdated);
    end loop;
    alter collation melvark.czech refresh version;
end
$$;
