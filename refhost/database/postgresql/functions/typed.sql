-- What people type, read. The same texts are numbers and dates here, on the embedded engine and in the program's own
-- checks. Blanks around a text (space, tab, line break, no-break space) mean nothing. Null gives null.

-- Without the blanks around it; null when nothing is left.
create function typed(value text) returns text
language sql immutable as $$
    select nullif(btrim(value, E' \t\r\n\u00A0'), '')
$$;

-- An integer of 32 bits; null for what is none.
create function as_integer(value text) returns integer
language plpgsql immutable as $$
declare
    number bigint;
begin
    if melvark.typed(value) ~ '^[+-]?0*[0-9]{1,10}$' then
        number := melvark.typed(value)::bigint;
    end if;
    return case when number between -2147483648 and 2147483647 then number end;
end
$$;

-- An identifier that came as a text, without the blanks around it; null when nothing is left, and for 0 and negative
-- ones, which mean none. What is no integer stays as it is, to be named by a refusal.
create function typed_id(value text) returns text
language plpgsql immutable as $$
begin
    if melvark.as_integer(value) <= 0 then
        return null;
    end if;
    return melvark.typed(value);
end
$$;

-- A number with a point or comma; null for a blank text too. Refusals, which name the label: ML001 no number, ML005 more
-- than 15 digits before the point or 50 after it, ML006 more than `decimals` after it.
create function parse_number(value text, label text default 'Hodnota', decimals integer default null) returns numeric
language plpgsql volatile as $$
declare
    number numeric;
    parts text[];
begin
    -- Nearly every text is settled here: to take a text apart costs more than all the rest of a row.
    if length(value) <= 60 and value ~ '^[+-]?(?:[0-9]+(?:[.,][0-9]*)?|[.,][0-9]+)$' then
        number := trim_scale(replace(value, ',', '.')::numeric);
        if abs(number) < 1e15 and scale(number) <= coalesce(decimals, 50) then
            return number;
        end if;
    elsif melvark.typed(value) is null then
        return null;
    end if;

    parts := regexp_match(melvark.typed(value), '^([+-]?)(?=[.,]?[0-9])0*([0-9]*)(?:[.,]([0-9]*?)0*)?$');
    if parts is null then
        perform melvark.refuse('ML001', label, value);
    elsif length(parts[2]) > 15 or length(parts[3]) > 50 then
        perform melvark.refuse('ML005', label, value);
    elsif length(parts[3]) > decimals then
        perform melvark.refuse('ML006', label, value, decimals::text);
    end if;
    return concat(parts[1], '0', parts[2], '.', parts[3], '0')::numeric;
end
$$;

-- The day of a year, month and day; null for one that the calendar does not have. It begins with year 1. Not strict: the
-- planner puts it into the expression that asks for it.
create function calendar_date(years integer, months integer, days integer) returns date
language sql immutable as $$
    select case when years between 1 and 9999 and months between 1 and 12 and days >= 1
                     and days <= extract(day from make_date(years, months, 1) + interval '1 month - 1 day')
                then make_date(years, months, days) end
$$;

-- The year, month and day that are written at the front of a text in an order (DMY, MDY or YMD), then what follows them;
-- null when it does not begin with any. `year_digits` is a pattern.
create function date_parts(value text, field_order text, separator text, year_digits text) returns text[]
language plpgsql immutable as $$
declare
    blanks constant text := '[ \t\r\n\u00A0]*';
    between_parts constant text := blanks || '[' || separator || ']' || blanks;
    short_part constant text := '([0-9]{1,2})';
    year_part constant text := '(' || year_digits || ')';
    parts text[];
begin
    parts := regexp_match(value, '^' || case field_order
        when 'YMD' then concat_ws(between_parts, year_part, short_part, short_part)
        else concat_ws(between_parts, short_part, short_part, year_part)
    end || '(?![0-9])(.*)$');
    return case field_order
        when 'YMD' then parts
        when 'DMY' then array[parts[3], parts[2], parts[1], parts[4]]
        else array[parts[3], parts[1], parts[2], parts[4]]
    end;
end
$$;

create function date_order() returns text
language sql stable as $$
    select coalesce(nullif(current_setting('melvark.date_order', true), ''), 'YMD')
$$;

create function date_separator() returns text
language sql stable as $$
    select coalesce(nullif(current_setting('melvark.date_separator', true), ''), '-')
$$;

-- A date in the session's order; null for a blank text too. A year of two digits lies between 50 years before this one and
-- 49 after it. Refusal ML002, which names the label: no date.
create function parse_date(value text, label text default 'Hodnota') returns date
language plpgsql volatile as $$
declare
    field_order constant text := melvark.date_order();
    separator constant text := melvark.date_separator();
    parts text[];
    first_year integer;
    years integer;
    day date;
begin
    -- Nearly every date is settled here, all its digits written and nothing between them but the separators: to take a text
    -- apart by patterns cost a third of a row.
    if translate(value, '0123456789', '') = separator || separator then
        parts := string_to_array(value, separator);
        parts := case field_order
            when 'YMD' then parts
            when 'DMY' then array[parts[3], parts[2], parts[1]]
            else array[parts[3], parts[1], parts[2]]
        end;
        if length(parts[1]) = 4 and length(parts[2]) in (1, 2) and length(parts[3]) in (1, 2) then
            day := melvark.calendar_date(parts[1]::integer, parts[2]::integer, parts[3]::integer);
            if day is not null then
                return day;
            end if;
        end if;
    elsif melvark.typed(value) is null then
        return null;
    end if;

    parts := melvark.date_parts(melvark.typed(value), field_order, separator, '[0-9]{4}|[0-9]{2}');
    years := parts[1];
    if length(parts[1]) = 2 then
        first_year := extract(year from melvark.today()) - 50;
        years := first_year + (years - first_year % 100 + 100) % 100;
    end if;
    day := case when parts[4] = '' then melvark.calendar_date(years, parts[2]::integer, parts[3]::integer) end;
    if day is null then
        perform melvark.refuse('ML002', label, value);
    end if;
    return day;
end
$$;

-- A moment in the given order: a date with a year of four digits, then perhaps hours, minutes and seconds; null for none.
create function read_moment(value text, date_order text, separator text) returns timestamp
language plpgsql immutable as $$
declare
    parts constant text[] := date_parts(value, date_order, separator, '[0-9]{4}');
    clock constant text[] :=
        regexp_match(parts[4], '^[ \t\r\n\u00A0]*([0-9]{1,2}):([0-9]{1,2})(?::([0-9]{1,2}))?$');
    day constant date := calendar_date(parts[1]::integer, parts[2]::integer, parts[3]::integer);
    hours constant integer := clock[1];
    minutes constant integer := clock[2];
    seconds constant integer := coalesce(clock[3], '0');
begin
    return case
        when parts[4] = '' then day
        when hours < 24 and minutes < 60 and seconds < 60 then day + make_time(hours, minutes, seconds)
    end;
end
$$;

-- A moment in the session's order or as 2027-02-01; null for a blank text too. Refusal ML002: none.
create function parse_moment(value text) returns timestamp
language plpgsql volatile as $$
declare
    moment constant timestamp := coalesce(read_moment(typed(value), date_order(), date_separator()),
                                          read_moment(typed(value), 'YMD', '-'));
begin
    if moment is null and typed(value) is not null then
        perform refuse('ML002', 'Hodnota', value);
    end if;
    return moment;
end
$$;
