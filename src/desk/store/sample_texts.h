#pragma once

#include <string_view>

// The words of the sample database: a small company that sells office furniture, and whom it deals with.
namespace store::sample {

struct Person {
    std::string_view name, title, department;
};
inline constexpr Person colleagues[] = {
    {"Anna Keller", "Managing Director", "Management"}, {"David Moreau", "Sales Manager", "Sales"},
    {"Grace Okafor", "Account Manager", "Sales"},       {"Liam Brennan", "Account Manager", "Sales"},
    {"Sofia Marin", "Purchasing", "Operations"},        {"Tom Whitfield", "Deliveries", "Operations"},
};

struct Company {
    std::string_view name, domain, street, city, state, postcode, country, area;
    bool is_supplier;
};
inline constexpr Company companies[] = {
    {"Alder & Finch Architects", "alderfinch.example", "18 Canal Street", "New York", "NY", "10013",
     "United States", "+1 (212)", false},
    {"Bellweather Insurance", "bellweather.example", "400 Market Street", "Philadelphia", "PA", "19106",
     "United States", "+1 (215)", false},
    {"Brookhaven School District", "brookhaven.example", "77 Maple Avenue", "Albany", "NY", "12207",
     "United States", "+1 (518)", false},
    {"Cardinal Legal Partners", "cardinal-legal.example", "9 Beacon Place", "Boston", "MA", "02108",
     "United States", "+1 (617)", false},
    {"Dunmore Timber", "dunmore-timber.example", "1 Mill Road", "Burlington", "VT", "05401", "United States",
     "+1 (802)", true},
    {"Eastgate Medical Center", "eastgate-medical.example", "210 Hill Street", "Newark", "NJ", "07102",
     "United States", "+1 (973)", false},
    {"Fairmont Steel Works", "fairmont-steel.example", "66 Foundry Lane", "Pittsburgh", "PA", "15222",
     "United States", "+1 (412)", true},
    {"Glasson Fabrics", "glasson.example", "12 Weaver Court", "Providence", "RI", "02903", "United States",
     "(401)", true},
    {"Hartley Hotels", "hartley-hotels.example", "5 Harbour View", "Portland", "ME", "04101", "United States",
     "(207)", false},
    {"Imprimerie Lavoie", "lavoie.example", "230 rue Sainte-Anne", "Montréal", "QC", "H2Y 1N9", "Canada",
     "+1 (514)", false},
    {"Juniper Software", "juniper-software.example", "88 Varick Street", "New York", "NY", "10013",
     "United States", "+1 (646)", false},
    {"Kestrel Logistics", "kestrel.example", "3 Depot Way", "Hartford", "CT", "06103", "United States", "+1 (860)",
     true},
    {"Lindqvist Lighting", "lindqvist.example", "41 Grand Avenue", "Stamford", "CT", "06901", "United States",
     "(203)", true},
    {"Meridian Coworking", "meridian-coworking.example", "150 Fulton Street", "Brooklyn", "NY", "11201",
     "United States", "+1 (718)", false},
    {"Northfield Town Council", "northfield.example", "1 Town Square", "Northfield", "NJ", "08225",
     "United States", "(609)", false},
    {"Oakes Upholstery", "oakes.example", "27 Tanner Street", "Trenton", "NJ", "08608", "United States", "(609)",
     true},
    {"Pruitt & Daughters", "pruitt.example", "14 Orchard Row", "Ithaca", "NY", "14850", "United States", "(607)",
     false},
    {"Quayside Restaurants", "quayside.example", "8 Wharf Street", "Boston", "MA", "02110", "United States",
     "+1 (617)", false},
    {"Ridgeline Glass", "ridgeline-glass.example", "90 Quarry Road", "Concord", "NH", "03301", "United States",
     "+1 (603)", true},
    {"Sterling Castors", "sterling-castors.example", "33 Wheel Lane", "Bridgeport", "CT", "06604", "United States",
     "(203)", true},
};

struct Name {
    std::string_view first, last;
};
inline constexpr int contacts_of_a_company = 3; // in the companies' order
inline constexpr Name contacts[] = {
    {"Marcus", "Alder"},     {"Helen", "Finch"},     {"Priya", "Raman"},     {"Oscar", "Bellamy"},
    {"Ingrid", "Sorensen"},  {"Paul", "Castellano"}, {"Nadia", "Haddad"},    {"George", "Whitman"},
    {"Camille", "Fournier"}, {"Teresa", "Ortiz"},    {"Howard", "Blake"},    {"Yuki", "Tanaka"},
    {"Walter", "Dunmore"},   {"Frank", "Deluca"},    {"Irene", "Mallory"},   {"Samuel", "Adeyemi"},
    {"Peter", "Vance"},      {"Joan", "Abernathy"},  {"Ellen", "Fairmont"},  {"Victor", "Petrov"},
    {"Dennis", "Ridgway"},   {"Rosa", "Glasson"},    {"Amelia", "Grant"},    {"Hugo", "Zimmermann"},
    {"Louise", "Hartley"},   {"Carlos", "Mendez"},   {"Fiona", "MacLeod"},   {"Benoît", "Lavoie"},
    {"Chloé", "Tremblay"},   {"Renée", "Gauthier"},  {"Ravi", "Menon"},      {"Kate", "Sullivan"},
    {"Maya", "Rosen"},       {"Olga", "Novak"},      {"Kwame", "Mensah"},    {"Judith", "Hale"},
    {"Anders", "Lindqvist"}, {"Sarah", "Lindholm"},  {"Edward", "Chu"},      {"Monica", "Bianchi"},
    {"Alan", "Foster"},      {"Patrick", "O'Leary"}, {"Diane", "Kowalski"},  {"Jerome", "Baptiste"},
    {"Laura", "Engel"},      {"Beatrice", "Oakes"},  {"Neil", "Armitage"},   {"Wendy", "Park"},
    {"Stanley", "Pruitt"},   {"Irene", "Pruitt"},    {"Simon", "Thackeray"}, {"Gloria", "Espinoza"},
    {"Martin", "Vogel"},     {"Alice", "Beaumont"},  {"Roger", "Stanhope"},  {"Tamara", "Ilic"},
    {"Colin", "Redfern"},    {"Theo", "Sterling"},   {"Esther", "Goldberg"}, {"Julian", "Marsh"},
};

inline constexpr std::string_view titles[] = {
    "Office Manager", "Purchasing Manager", "Director",        "Facilities Manager",
    "Assistant",      "Head of Finance",    "Project Manager", "Owner"};
inline constexpr std::string_view groups[] = {"Customers", "Suppliers", "Spring Fair"};

inline constexpr std::string_view calls[] = {
    "Follow up on the offer",      "Confirm delivery date",      "Ask about the overdue invoice",
    "Return missed call",          "Discuss chair samples",      "Check the order quantity",
    "Arrange a site visit",        "Thank for the order",        "Ask for a reference",
    "Change of delivery address",  "Warranty claim, desk lamps", "Introduce the new catalogue",
    "Price for 40 standing desks", "Feedback on the trial"};
inline constexpr std::string_view meetings[] = {"Product demonstration",
                                                "Contract negotiation",
                                                "Floor plan review",
                                                "Quarterly review",
                                                "Showroom tour",
                                                "Kick-off new office",
                                                "Supplier visit",
                                                "Interview, sales assistant",
                                                "Budget planning",
                                                "Lunch with the client",
                                                "Spring fair planning",
                                                "Complaint, damaged cabinets",
                                                "Measure the reception area",
                                                "Training on the catalogue"};
inline constexpr std::string_view to_dos[] = {
    "Prepare the offer",     "Send brochures",          "Write the meeting minutes",
    "Order fabric samples",  "Update the price list",   "Check the stock of desks",
    "Book the van",          "File the expense report", "Draft the contract",
    "Review the floor plan", "Send the birthday card"};
inline constexpr std::string_view details[] = {
    "Bring the catalogue and two chair samples.\nParking is behind the building.",
    "They compare us with one other supplier. The price matters less than the delivery date.",
    "Ask for the signed copy of the contract.",
    "Floor 3 first, then the reception.\nThe lift takes boxes up to 2 metres.",
    "Last order: 24 swivel chairs, 12 desks. Two chairs came back.",
    "Speak to the assistant if there is no answer."};
inline constexpr std::string_view notes[] = {
    "Prefers to be called before ten.",     "Asked for the new catalogue.",
    "Will decide after the summer.",        "Paid the last invoice within a week.",
    "Moving to a larger office next year.", "Met at the spring fair, wants a quote for 15 desks.",
    "Left a message with the assistant."};
inline constexpr std::string_view results[] = {"Completed", "Held", "Left message", "Not held"};

// Dark enough to be read on a light ground: blue, green and red from the high byte down.
inline constexpr unsigned colours[] = {0x8B0000, 0x006400, 0x000080, 0x82004B, 0x5F5F00, 0x214365, 0x00008B};

} // namespace store::sample
