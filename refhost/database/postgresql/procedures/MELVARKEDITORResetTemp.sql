-- Begins a save, for which it empties this session's rows and opens them for new ones. Refuses nothing.
--
-- begins: a save

create function MELVARKEDITORResetTemp() returns void
language plpgsql as $$
begin
    -- Checked rows of a delivery note that become lines, in the order in which they came. The place counts every row that
    -- was sent, so that a refusal of the closing call names the row that the editor sent. NUMBERS as note_line_numbers
    -- gives them.
    create temporary table if not exists NOTE_STAGED (
        PLACE integer,
        DOBSID integer, SKLPID integer, SKLDID integer, DPHID integer, NUMBERS numeric[], TRVANLIVOST date
    );
    -- Checked quantities of an order or template, each of which becomes a line.
    create temporary table if not exists ORDER_STAGED (
        PLACE integer generated always as identity,
        SKLPID integer, SKPLID integer, SKLDID integer, DODVID integer, MNOZSTVI numeric, POPIS text, KOMENTAR text
    );
    -- Into which order the lines of each supplier go; a null supplier is that of lines without one.
    create temporary table if not exists ORDER_TARGET (DODVID integer, DDOBID integer);

    if not has_own_staging() then
        raise exception 'the rows of a save lie in tables that another role made';
    end if;
    -- Emptied with their files: rows that were deleted or taken back would stay in them as long as the session lasts.
    -- After a success they are empty already.
    if pg_relation_size('pg_temp.note_staged') > 0 or pg_relation_size('pg_temp.order_staged') > 0
       or pg_relation_size('pg_temp.order_target') > 0 then
        truncate pg_temp.NOTE_STAGED, pg_temp.ORDER_STAGED, pg_temp.ORDER_TARGET;
    end if;
    perform set_config('melvark.last_row', '-1', false), set_config('melvark.staging', 'open', false);
end
$$;
