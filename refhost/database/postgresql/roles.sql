-- Who may do what. melvark_owner owns the company's schema and logs in nowhere. melvark_clerk is the group of the people
-- who work with the company: it runs the procedures and reads the views and nothing else (privileges.sql). A new clerk is
-- a login role with "in role melvark_clerk".
--
-- Runs as the role that makes or upgrades the database, which may well be no superuser: it has "createrole" and owns the
-- database. Roles belong to the whole server, so they may be there from another database. All of it may run again.

do $$
begin
    if to_regrole('melvark_owner') is null then
        create role melvark_owner nologin;
    end if;
    if to_regrole('melvark_clerk') is null then
        create role melvark_clerk nologin;
    end if;
    -- Who makes the schema for melvark_owner has to be able to act as that role. From version 16 on the server makes a
    -- creator a member who may hand the role on but not act as it.
    if current_setting('server_version_num')::integer < 160000 then
        if not pg_has_role('melvark_owner', 'member') then
            grant melvark_owner to current_user;
        end if;
    elsif not (pg_has_role('melvark_owner', 'set') and pg_has_role('melvark_owner', 'usage')) then
        execute 'grant melvark_owner to current_user with set true, inherit true';
    end if;
end
$$;

create schema if not exists melvark authorization melvark_owner;

-- The rows of a save lie in temporary tables. The procedures make them as their owner, so nobody else needs the right; and
-- nobody else must have it, for a procedure would write into a clerk's own table of that name and run its triggers.
do $$
begin
    execute format('revoke temporary on database %I from public', current_database());
    execute format('grant temporary on database %I to melvark_owner', current_database());
end
$$;
