-- Begins a save, for which it empties this session's rows and opens them for new ones. Refuses nothing.
create function MELVARKEDITORResetTemp() returns void
language plpgsql as $$
begin
    -- Checked rows of a delivery note that become lines, in the order in which they came.
    create temporary table if not exists NOTE_STAGED (
        PLACE integer generated always as identity primary key,
        LINE DODAKPOL not null
    );
    -- Checked quantities of an order or template, each of which becomes a line.
    create temporary table if not exists ORDER_STAGED (
        PLACE integer generated always as identity primary key,
        LINE DODOBJPOL not null
    );
    -- Into which order the lines of each supplier go; a null supplier is that of lines without one.
    create temporary table if not exists ORDER_TARGET (DODVID integer, DDOBID integer);

    if not has_own_staging() then
        raise exception 'the rows of a save lie in tables that another role made';
    end if;
    delete from pg_temp.NOTE_STAGED;
    delete from pg_temp.ORDER_STAGED;
    perform set_config('melvark.staging', 'open', false);
end
$$;
