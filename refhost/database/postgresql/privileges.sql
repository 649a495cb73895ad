-- What clerks may do, after everything is made. Procedures and the functions of lookup conditions run with their owner's
-- rights. Every function finds names in the company's schema only, whatever the caller's session says.

do $$
declare
    routine regprocedure;
    relation regclass;
begin
    for routine in
        select p.oid from pg_catalog.pg_proc p where p.pronamespace = 'melvark'::regnamespace
    loop
        execute format('revoke all on function %s from public', routine);
    end loop;

    for routine in
        select p.oid from pg_catalog.pg_proc p
        where p.pronamespace = 'melvark'::regnamespace
          and (p.proname like 'melvarkeditor%' or p.proname like 'v\_%')
    loop
        execute format('alter function %s security definer set search_path = melvark, pg_temp', routine);
        execute format('grant execute on function %s to melvark_clerk', routine);
    end loop;

    -- The functions that these stand on find their names there, too, whoever calls them. One whose names were bound when it
    -- was made, or stand in it with the schema, needs no setting, which each call of it would pay for.
    for routine in
        with NAMES (PATTERN) as (
            select '(^|[^a-z0-9_.])(' || string_agg(NAME, '|') || ')($|[^a-z0-9_])'
            from (select c.relname::text from pg_catalog.pg_class c where c.relnamespace = 'melvark'::regnamespace
                  union select f.proname::text from pg_catalog.pg_proc f where f.pronamespace = 'melvark'::regnamespace
                  union select t.typname::text from pg_catalog.pg_type t
                  where t.typnamespace = 'melvark'::regnamespace and t.typtype = 'c') n (NAME)
        )
        select p.oid
        from pg_catalog.pg_proc p cross join NAMES
        where p.pronamespace = 'melvark'::regnamespace and p.prosqlbody is null and p.proconfig is null
          and p.prosrc ~* NAMES.PATTERN
    loop
        execute format('alter function %s set search_path = melvark, pg_temp', routine);
    end loop;

    -- The views for people call these with the rights of the one who reads.
    for routine in
        select p.oid from pg_catalog.pg_proc p
        where p.pronamespace = 'melvark'::regnamespace
          and p.proname in ('decimal_separator', 'written_number', 'number_text', 'written_total', 'total_text', 'date_text',
                            'moment_text')
    loop
        execute format('grant execute on function %s to melvark_clerk', routine);
    end loop;

    for relation in
        select c.oid from pg_catalog.pg_class c
        where c.relnamespace = 'melvark'::regnamespace and c.relkind = 'v'
          and (c.relname like 'screen\_%\_v' or c.relname like '%\_normal\_v' or c.relname like 'skupspol\_%\_v'
               or c.relname in ('sklad_v', 'dodavatel_v'))
    loop
        execute format('grant select on %s to melvark_clerk', relation);
    end loop;
end
$$;

grant usage on schema melvark to melvark_clerk;

-- The first session that meets another version of the sorting rules rebuilds the indices for everybody.
grant execute on function refresh_collation() to melvark_clerk;
