-- Ends the call with a refusal: a code of ours and a sentence for the person who called.
create function refuse(code text, sentence text) returns void
language plpgsql as $$
begin
    raise exception using errcode = code, message = sentence;
end
$$;
